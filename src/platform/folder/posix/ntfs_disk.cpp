#include "platform/folder/posix/ntfs_disk.h"

#include <sys/vfs.h>
#include <sys/xattr.h>

#include <array>
#include <cstddef>

#include "platform/utf8.h"

namespace quillvane {

namespace {

constexpr const char* kAttributes = "system.ntfs_attrib";
constexpr const char* kTimes = "system.ntfs_times";  // made, written, accessed, changed
constexpr const char* kReparseData = "system.ntfs_reparse_data";

// The disk is mounted by a program of the host, or by the kernel itself.
constexpr unsigned long kFuse = 0x65735546;
constexpr unsigned long kNtfs3 = 0x7366746e;

constexpr std::size_t kMostReparseData = 16 * 1024;  // what Windows allows
constexpr std::uint32_t kJunctionTag = 0xA0000003;
constexpr std::uint32_t kSymbolicLinkTag = 0xA000000C;

// The number of `size` bytes at `at`, which lie within the data.
std::uint64_t little_endian(std::string_view data, std::size_t at, std::size_t size) {
  std::uint64_t number = 0;
  for (std::size_t i = size; i > 0; --i) {
    number = number << 8U | static_cast<unsigned char>(data[at + i - 1]);
  }
  return number;
}

bool is_letter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// Takes a name of the object manager apart: "\??\D:\data".
NtfsLink absolute_link(std::string_view name) {
  NtfsLink link;
  if (!name.starts_with("\\??\\")) return link;
  name.remove_prefix(4);
  const bool on_drive = name.size() >= 2 && is_letter(name[0]) && name[1] == ':' &&
                        (name.size() == 2 || name[2] == '\\');
  if (!on_drive) return link;
  link.kind = NtfsLink::Kind::kOnDrive;
  link.letter = static_cast<char>(name[0] & ~0x20);
  link.target = name.substr(2);
  return link;
}

NtfsLink relative_link(std::string_view name) {
  NtfsLink link;
  if (name.empty() || name.starts_with("\\\\")) return link;
  link.kind = name[0] == '\\' ? NtfsLink::Kind::kOwnRoot : NtfsLink::Kind::kRelative;
  link.target = name;
  return link;
}

}  // namespace

bool lies_on_ntfs(int folder) {
  struct statfs disk;
  if (fstatfs(folder, &disk) != 0) return false;
  const auto type = static_cast<unsigned long>(disk.f_type);
  return (type == kFuse || type == kNtfs3) && NtfsObject(folder).attributes().has_value();
}

NtfsLink parse_ntfs_link(std::string_view data) {
  // Tag, length and two reserved bytes, then where the name lies and how long it is, and as much of
  // the name that is shown.
  constexpr std::size_t kHead = 8;
  constexpr std::size_t kLocations = 8;
  NtfsLink nowhere;
  if (data.size() < kHead) return nowhere;
  const auto tag = static_cast<std::uint32_t>(little_endian(data, 0, 4));
  if (tag != kJunctionTag && tag != kSymbolicLinkTag) return {NtfsLink::Kind::kNone, 0, {}};
  const std::size_t flags = tag == kSymbolicLinkTag ? 4 : 0;
  const std::size_t names = kHead + kLocations + flags;
  if (data.size() < names) return nowhere;
  const std::size_t begin = little_endian(data, kHead, 2);
  const std::size_t length = little_endian(data, kHead + 2, 2);
  if (begin + length > data.size() - names || length % 2 != 0) return nowhere;
  const std::string name = utf8_from_utf16le(data.substr(names + begin, length));
  const bool is_relative = flags != 0 && (little_endian(data, kHead + kLocations, 4) & 1U) != 0;
  return is_relative ? relative_link(name) : absolute_link(name);
}

NtfsObject::NtfsObject(int object)
    : path_("/proc/self/fd/" + std::to_string(object)), is_entry_(false) {}

NtfsObject::NtfsObject(int folder, const std::string& name)
    : path_("/proc/self/fd/" + std::to_string(folder) + "/" + name), is_entry_(true) {}

std::optional<std::string> NtfsObject::stored(const char* name) const {
  std::array<char, kMostReparseData> data;
  const auto read = is_entry_ ? lgetxattr : getxattr;
  const ssize_t length = read(path_.c_str(), name, data.data(), data.size());
  if (length < 0) return std::nullopt;
  return std::string(data.data(), static_cast<std::size_t>(length));
}

std::optional<std::uint32_t> NtfsObject::attributes() const {
  const auto bits = stored(kAttributes);
  if (!bits || bits->size() != 4) return std::nullopt;
  return static_cast<std::uint32_t>(little_endian(*bits, 0, 4));
}

bool NtfsObject::set_attributes(std::uint32_t mask, std::uint32_t bits) const {
  const auto old = attributes();
  if (!old) return false;
  const std::uint32_t now = (*old & ~mask) | (bits & mask);
  std::array<char, 4> bytes;
  for (unsigned i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(now >> 8U * i & 0xFFU);
  const auto write = is_entry_ ? lsetxattr : setxattr;
  return write(path_.c_str(), kAttributes, bytes.data(), bytes.size(), 0) == 0;
}

std::optional<FileTime> NtfsObject::created() const {
  const auto times = stored(kTimes);
  if (!times || times->size() < 8) return std::nullopt;
  return FileTime{static_cast<std::int64_t>(little_endian(*times, 0, 8))};
}

NtfsLink NtfsObject::link() const {
  const auto data = stored(kReparseData);
  return data ? parse_ntfs_link(*data) : NtfsLink();
}

}  // namespace quillvane
