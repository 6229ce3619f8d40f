#include "platform/folder/posix/file_attributes.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_system.h"
#include "platform/folder/posix/ntfs_disk.h"

namespace quillvane {

namespace {

constexpr const char* kName = "user.DOSATTRIB";
constexpr std::uint32_t kSettable =
    kAttributeReadOnly | kAttributeHidden | kAttributeSystem | kAttributeArchive;

// A path that leads to the object itself, wherever its name has gone.
std::string path_of(const HostPlace& place) {
  return "/proc/self/fd/" + std::to_string(place.object.number());
}

// `read` decides whether a link at the end of the path is followed.
std::optional<std::string> stored_text(const std::string& path, decltype(&getxattr) read) {
  std::array<char, 256> text;
  const ssize_t length = read(path.c_str(), kName, text.data(), text.size());
  if (length < 0) return std::nullopt;
  return std::string(text.data(), static_cast<std::size_t>(length));
}

// The same of what bears the name in an open folder, in one step where the kernel has one (6.13 and
// later).
std::optional<std::string> stored_text(const HostPlace& folder, const std::string& name) {
  struct Arguments {  // as the kernel defines them
    std::uint64_t value;
    std::uint32_t size;
    std::uint32_t flags;
  };
  constexpr long kGetxattrat = 464;
  std::array<char, 256> text;
  Arguments arguments{reinterpret_cast<std::uintptr_t>(text.data()), text.size(), 0};
  const long length = syscall(kGetxattrat, folder.object.number(), name.c_str(),
                              AT_SYMLINK_NOFOLLOW, kName, &arguments, sizeof arguments);
  if (length >= 0) return std::string(text.data(), static_cast<std::size_t>(length));
  if (errno != ENOSYS && errno != EPERM) return std::nullopt;
  return stored_text(path_of(folder) + "/" + name, lgetxattr);
}

// The number at the front; other programs may put more behind it.
std::optional<std::uint32_t> parse(std::string_view text) {
  if (!text.starts_with("0x") && !text.starts_with("0X")) return std::nullopt;
  text.remove_prefix(2);
  std::uint32_t bits = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), bits, 16);
  if (read.ec != std::errc()) return std::nullopt;
  return bits;
}

std::string formatted(std::uint32_t bits) {
  std::array<char, 8> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), bits, 16).ptr;
  return "0x" + std::string(digits.data(), end);
}

bool store(const HostPlace& place, const std::string& text) {
  return setxattr(path_of(place).c_str(), kName, text.data(), text.size(), 0) == 0;
}

bool set_owner_may_write(const HostPlace& place, bool may) {
  const mode_t mode = place.status.stx_mode & 07777U;
  return chmod(path_of(place).c_str(), may ? mode | S_IWUSR : mode & ~mode_t{S_IWUSR}) == 0;
}

std::uint32_t attributes_of(const HostStatus& status, const std::optional<std::string>& text) {
  const bool folder = is_folder(status);
  const std::uint32_t kind = folder ? kAttributeFolder : 0;
  if (const auto stored = text ? parse(*text) : std::nullopt) {
    const std::uint32_t bits = (*stored & kSettable) | kind;
    return bits == 0 ? kAttributeNormal : bits;
  }
  if (folder) return kind;
  const bool writable = (status.stx_mode & S_IWUSR) != 0;
  return kAttributeArchive | (writable ? 0 : kAttributeReadOnly);
}

// Of a file on an NTFS disk whose attributes cannot be told nothing is known that would allow to
// remove it.
std::uint32_t ntfs_attributes_of(const HostStatus& status, const NtfsObject& object) {
  const std::uint32_t kind = is_folder(status) ? kAttributeFolder : 0;
  const std::uint32_t stored = object.attributes().value_or(kAttributeReadOnly);
  const std::uint32_t bits = (stored & kSettable) | kind;
  return bits == 0 ? kAttributeNormal : bits;
}

}  // namespace

std::uint32_t read_file_attributes(const HostPlace& place) {
  if (place.on_ntfs) return ntfs_attributes_of(place.status, NtfsObject(place.object.number()));
  return attributes_of(place.status, stored_text(path_of(place), getxattr));
}

std::uint32_t read_file_attributes(const HostPlace& folder, const std::string& name,
                                   const HostStatus& status) {
  if (folder.on_ntfs) {
    return ntfs_attributes_of(status, NtfsObject(folder.object.number(), name));
  }
  return attributes_of(status, stored_text(folder, name));
}

bool write_file_attributes(const HostPlace& place, std::uint32_t bits) {
  const bool folder = is_folder(place.status);
  bits &= kSettable;
  if (place.on_ntfs) return NtfsObject(place.object.number()).set_attributes(kSettable, bits);
  const std::uint32_t kind = folder ? kAttributeFolder : 0;
  const std::string text = formatted((bits | kind) == 0 ? kAttributeNormal : bits | kind);
  if (store(place, text)) return true;
  const bool writable = (place.status.stx_mode & S_IWUSR) != 0;
  if (errno == EOPNOTSUPP) {
    return folder || set_owner_may_write(place, (bits & kAttributeReadOnly) == 0);
  }
  // The owner's right to write is needed for extended attributes too.
  if (errno != EACCES || writable || !set_owner_may_write(place, true)) return false;
  const bool stored = store(place, text);
  return set_owner_may_write(place, false) && stored;
}

void copy_file_attributes(const HostPlace& from, int to) {
  if (from.on_ntfs) {
    const auto bits = NtfsObject(from.object.number()).attributes();
    if (bits) static_cast<void>(NtfsObject(to).set_attributes(kSettable, *bits));
    return;
  }
  if (const auto text = stored_text(path_of(from), getxattr))
    fsetxattr(to, kName, text->data(), text->size(), 0);
}

}  // namespace quillvane
