#include "platform/folder/posix/directory_listing.h"

#include <dirent.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <optional>

#include "platform/folder/posix/host_status.h"

namespace quillvane {

namespace {

constexpr std::size_t kBufferBytes = std::size_t{256} * 1024;
constexpr std::size_t kLeastFree = std::size_t{32} * 1024;  // below this the buffer grows

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

DirectoryListing::DirectoryListing() : NameListing(kBufferBytes) {}

bool DirectoryListing::read(int folder) {
  clear_entries();
  has_links_ = false;
  if (buffer_bytes() > kBufferBytes) {
    resize_buffer(kBufferBytes, 0);
    give_up_room();
  }
  for (std::size_t used = 0;;) {
    if (buffer_bytes() - used < kLeastFree) resize_buffer(2 * buffer_bytes(), used);
    const long got = syscall(SYS_getdents64, folder, buffer() + used, buffer_bytes() - used);
    if (got == 0) return true;
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) {
      clear_entries();
      return false;
    }
    add_entries(folder, used, used + static_cast<std::size_t>(got));
    used += static_cast<std::size_t>(got);
  }
}

void DirectoryListing::add_entries(int folder, std::size_t begin, std::size_t end) {
  while (begin < end) {
    const auto& entry = *reinterpret_cast<const dirent64*>(buffer() + begin);
    begin += entry.d_reclen;
    const std::string_view name = entry.d_name;
    if (name == "." || name == ".." || name.find('\\') != std::string_view::npos) continue;
    const auto kind = kind_of(folder, entry);
    if (!kind) continue;
    has_links_ |= *kind == Kind::kLink;
    add_entry(name, *kind);
  }
}

}  // namespace quillvane
