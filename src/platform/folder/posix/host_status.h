// What the host tells about a file or folder, and its times as Windows counts them.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <compare>
#include <cstdint>
#include <optional>

#include "platform/file_time.h"
#include "platform/link_budget.h"

namespace quillvane {

using HostStatus = struct statx;

inline constexpr unsigned kStatusParts = STATX_TYPE | STATX_MODE | STATX_UID | STATX_GID |
                                         STATX_INO | STATX_SIZE | STATX_BTIME | STATX_ATIME |
                                         STATX_MTIME;

// Of the entry `name` of an open folder; a link is not followed. False when it cannot be told.
[[nodiscard]] inline bool read_status(int folder, const char* name, HostStatus& status) {
  return statx(folder, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, kStatusParts, &status) == 0;
}

// Of the open object itself.
[[nodiscard]] inline bool read_status(int descriptor, HostStatus& status) {
  return statx(descriptor, "", AT_EMPTY_PATH | AT_NO_AUTOMOUNT, kStatusParts, &status) == 0;
}

[[nodiscard]] inline bool is_file(const HostStatus& status) { return S_ISREG(status.stx_mode); }
[[nodiscard]] inline bool is_folder(const HostStatus& status) { return S_ISDIR(status.stx_mode); }
[[nodiscard]] inline bool is_link(const HostStatus& status) { return S_ISLNK(status.stx_mode); }

// Whether an error of the host says that nothing bears the name, or nothing can: no name of the
// host is so long or has such bytes, or the way there leads nowhere. After every other error that
// cannot be told.
[[nodiscard]] inline bool means_missing(int error) {
  switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ELOOP:
    case ENAMETOOLONG:
    case EINVAL:
    case EILSEQ:
      return true;
    default:
      return false;
  }
}

// Nothing, because it is not there.
[[nodiscard]] inline std::nullopt_t missing() {
  errno = ENOENT;
  return std::nullopt;
}

// Tells two objects of the host apart, whatever names lead to them.
struct HostIdentity {
  std::uint32_t device_major = 0;
  std::uint32_t device_minor = 0;
  std::uint64_t inode = 0;

  static HostIdentity of(const HostStatus& status) {
    return {status.stx_dev_major, status.stx_dev_minor, status.stx_ino};
  }
  [[nodiscard]] FolderIdentity key() const {
    return {std::uint64_t{device_major} << 32U | device_minor, inode};
  }
  friend auto operator<=>(const HostIdentity&, const HostIdentity&) = default;
};

[[nodiscard]] inline FileTime file_time(const statx_timestamp& time) {
  constexpr std::int64_t kSecondsFrom1601To1970 = 11644473600;
  constexpr std::int64_t kTicksPerSecond = 10'000'000;
  return {(time.tv_sec + kSecondsFrom1601To1970) * kTicksPerSecond + time.tv_nsec / 100};
}

// Not every file system remembers when a file was made; there its last change stands for it.
[[nodiscard]] inline FileTime created_time(const HostStatus& status) {
  return file_time((status.stx_mask & STATX_BTIME) != 0 ? status.stx_btime : status.stx_mtime);
}

}  // namespace quillvane
