#include "platform/folder/posix/folder_watch.h"

#include <fcntl.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>

#include "platform/folder/posix/host_status.h"

namespace quillvane {

namespace {

constexpr std::uint32_t kWatched =
    IN_CREATE | IN_MOVED_TO | IN_MOVE_SELF | IN_DELETE_SELF | IN_ONLYDIR;

// Disk file systems, those in memory and layers of them, by the number that statfs tells.
constexpr std::uint32_t kChangedByTheKernelAlone[] = {
    0xEF53,      // ext2 to ext4
    0x01021994,  // tmpfs
    0x58465342,  // XFS
    0x9123683E,  // Btrfs
    0xF2F52010,  // F2FS
    0xCA451A4E,  // bcachefs
    0x2FC12FC1,  // ZFS
    0x00004D44,  // FAT
    0x2011BAB0,  // exFAT
    0x7366746E,  // NTFS of the kernel
    0x794C7630,  // layers
    0x858458F6,  // ramfs
};
// A program serves it. One that has a disk of its own to serve, as that for NTFS, is told all
// changes by the kernel; others fetch their files from anywhere.
constexpr std::uint32_t kServedByAProgram = 0x65735546;

bool is_changed_by_the_kernel_alone(int folder) {
  struct statfs system;
  if (fstatfs(folder, &system) != 0) return false;
  const auto type = static_cast<std::uint32_t>(system.f_type);
  if (type == kServedByAProgram) {
    HostStatus status;
    return read_status(folder, status) && status.stx_dev_major != 0;
  }
  return std::find(std::begin(kChangedByTheKernelAlone), std::end(kChangedByTheKernelAlone),
                   type) != std::end(kChangedByTheKernelAlone);
}

FolderChange::Kind kind_of(std::uint32_t mask) {
  if ((mask & IN_Q_OVERFLOW) != 0) return FolderChange::Kind::kUnknown;
  const bool is_new = (mask & (IN_CREATE | IN_MOVED_TO)) != 0;
  return is_new ? FolderChange::Kind::kNewName : FolderChange::Kind::kMoved;
}

}  // namespace

int FolderWatch::watch(int folder) {
  if (!is_changed_by_the_kernel_alone(folder)) return -1;
  if (!notes_.is_open()) notes_ = Descriptor(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
  // A descriptor that is good for finding only cannot be handed over itself.
  const std::string path = "/proc/self/fd/" + std::to_string(folder);
  return inotify_add_watch(notes_.number(), path.c_str(), kWatched);
}

bool FolderWatch::take(const std::function<void(const FolderChange&)>& change) {
  constexpr std::size_t kRoom = 16384;
  alignas(inotify_event) std::array<char, kRoom> notes;
  if (!notes_.is_open()) return true;  // nothing is watched
  for (;;) {
    const ssize_t got = read(notes_.number(), notes.data(), notes.size());
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return errno == EAGAIN;
    for (std::size_t at = 0; at < static_cast<std::size_t>(got);) {
      const auto& note = *reinterpret_cast<const inotify_event*>(notes.data() + at);
      at += sizeof note + note.len;
      const std::string_view name = note.len == 0 ? std::string_view() : note.name;
      change({kind_of(note.mask), note.wd, name});
    }
  }
}

}  // namespace quillvane
