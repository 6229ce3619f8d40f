#include "platform/folder/directory_listing.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>

#include "platform/folder/descriptor.h"
#include "platform/folder/host_status.h"
#include "platform/unicode_case.h"
#include "platform/utf8.h"

namespace quillvane {

namespace {

constexpr std::size_t kBufferBytes = std::size_t{256} * 1024;
constexpr std::size_t kLeastFree = std::size_t{32} * 1024;  // below this the buffer grows
constexpr std::size_t kKeyBytes = 8;

constexpr std::uint64_t repeated(std::uint64_t byte) { return byte * 0x0101010101010101U; }

// The key of a name whose first bytes are not all ASCII. A letter above ASCII comes behind all of
// ASCII, unless its capital is there.
std::uint64_t order_of_letters(std::string_view name) {
  std::uint64_t key = 0;
  std::size_t bytes = 0;
  for (std::size_t at = 0; at < name.size() && bytes < kKeyBytes; ++bytes) {
    const DecodedCodePoint point = decode_utf8(name, at);
    const char32_t upper = point.valid ? to_upper(point.value) : point.value;
    if (upper >= 0x80) return key | std::uint64_t{0xFF} << 8U * (kKeyBytes - 1 - bytes);
    key |= std::uint64_t{upper} << 8U * (kKeyBytes - 1 - bytes);
    at += point.length;
  }
  return key;
}

// The capitals of the first eight bytes as one number that compares like the names. The name lies
// in a buffer that goes on for at least that many bytes.
std::uint64_t order_of(std::string_view name) {
  std::uint64_t bytes = 0;
  std::memcpy(&bytes, name.data(), kKeyBytes);
  if constexpr (std::endian::native == std::endian::little) bytes = __builtin_bswap64(bytes);
  if (name.size() < kKeyBytes) bytes &= ~(~std::uint64_t{0} >> 8U * name.size());
  if ((bytes & repeated(0x80)) != 0) return order_of_letters(name);
  const std::uint64_t from_a = bytes + repeated(0x80 - 'a');
  const std::uint64_t above_z = bytes + repeated(0x80 - 'z' - 1);
  const std::uint64_t small_letters = from_a & ~above_z & repeated(0x80);
  return bytes - (small_letters >> 2U);
}

// The kind by the host's short notice of it; nothing for what the machine does not know.
std::optional<DirectoryListing::Kind> kind_of(int folder, const dirent64& entry) {
  using Kind = DirectoryListing::Kind;
  switch (entry.d_type) {
    case DT_REG:
      return Kind::kFile;
    case DT_DIR:
      return Kind::kFolder;
    case DT_LNK:
      return Kind::kLink;
    case DT_UNKNOWN:
      break;
    default:
      return std::nullopt;
  }
  HostStatus status;
  if (!read_status(folder, entry.d_name, status)) return std::nullopt;
  if (is_file(status)) return Kind::kFile;
  if (is_folder(status)) return Kind::kFolder;
  if (is_link(status)) return Kind::kLink;
  return std::nullopt;
}

}  // namespace

DirectoryListing::DirectoryListing() { resize_buffer(kBufferBytes, 0); }

void DirectoryListing::resize_buffer(std::size_t bytes, std::size_t bytes_kept) {
  auto resized = std::make_unique_for_overwrite<char[]>(bytes + kKeyBytes);
  std::copy_n(buffer_.get(), bytes_kept, resized.get());
  buffer_ = std::move(resized);
  buffer_bytes_ = bytes;
}

bool DirectoryListing::read(int folder) {
  entries_.clear();
  has_links_ = false;
  if (buffer_bytes_ > kBufferBytes) {
    resize_buffer(kBufferBytes, 0);
    entries_.shrink_to_fit();
  }
  for (std::size_t used = 0;;) {
    if (buffer_bytes_ - used < kLeastFree) resize_buffer(2 * buffer_bytes_, used);
    const long got = syscall(SYS_getdents64, folder, buffer_.get() + used, buffer_bytes_ - used);
    if (got == 0) return true;
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) {
      entries_.clear();
      return false;
    }
    add_entries(folder, used, used + static_cast<std::size_t>(got));
    used += static_cast<std::size_t>(got);
  }
}

void DirectoryListing::add_entries(int folder, std::size_t begin, std::size_t end) {
  while (begin < end) {
    const auto& entry = *reinterpret_cast<const dirent64*>(buffer_.get() + begin);
    begin += entry.d_reclen;
    const std::string_view name = entry.d_name;
    if (name == "." || name == ".." || name.find('\\') != std::string_view::npos) continue;
    const auto kind = kind_of(folder, entry);
    if (!kind) continue;
    has_links_ |= *kind == Kind::kLink;
    entries_.push_back({order_of(name), 0, static_cast<std::uint32_t>(name.data() - buffer_.get()),
                        static_cast<std::uint16_t>(name.size()), *kind});
  }
}

void DirectoryListing::sort() {
  std::sort(entries_.begin(), entries_.end(), [this](const Entry& left, const Entry& right) {
    if (left.order != right.order) return left.order < right.order;
    const int difference = compare_names(name(left), name(right));
    return difference != 0 ? difference < 0 : name(left) < name(right);
  });
}

std::optional<std::string> stored_name(int folder, const std::string& name) {
  HostStatus status;
  if (read_status(folder, name.c_str(), status)) return name;
  const Descriptor readable(openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  DirectoryListing listing;
  if (!readable.is_open() || !listing.read(readable.number())) return std::nullopt;
  std::optional<std::string> found;
  for (const auto& entry : listing.entries()) {
    const std::string_view stored = listing.name(entry);
    if (same_name(stored, name) && (!found || stored < *found)) found = stored;
  }
  return found;
}

}  // namespace quillvane
