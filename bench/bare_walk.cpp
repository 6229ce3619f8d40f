#include "bench/bare_walk.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstring>
#include <new>

namespace quillvane::bench {

namespace {

constexpr std::size_t kBufferBytes = std::size_t{256} * 1024;
constexpr std::size_t kBlockBytes = std::size_t{256} * 1024;

std::int64_t ticks(const statx_timestamp& time) {
  return (time.tv_sec + 11644473600) * 10000000 + time.tv_nsec / 100;
}

}  // namespace

BareWalk::BareWalk(const std::string& folder)
    : buffer_(std::make_unique_for_overwrite<char[]>(kBufferBytes)) {
  const int top = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (top < 0) return;
  read_folder(top, folder);
  close(top);
}

void BareWalk::read_folder(int folder, const std::string& path) {
  const auto number = static_cast<std::uint32_t>(folders_.size());
  folders_.push_back(path);
  std::vector<std::string> subfolders;
  while (const std::size_t size = read_entries(folder)) {
    for (std::size_t at = 0; at < size;) {
      const auto* entry = reinterpret_cast<const dirent64*>(buffer_.get() + at);
      at += entry->d_reclen;
      const std::string_view name = entry->d_name;
      if (name == "." || name == "..") continue;
      if (entry->d_type == DT_DIR) {
        subfolders.emplace_back(name);
        continue;
      }
      struct statx status;
      constexpr unsigned kWanted =
          STATX_TYPE | STATX_SIZE | STATX_BTIME | STATX_ATIME | STATX_MTIME;
      if (statx(folder, entry->d_name, AT_SYMLINK_NOFOLLOW, kWanted, &status) != 0) continue;
      keep(number, name, status);
    }
  }
  for (const std::string& name : subfolders) {
    const int next = openat(folder, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (next < 0) continue;
    read_folder(next, std::string(path).append("/").append(name));
    close(next);
  }
}

std::size_t BareWalk::read_entries(int folder) {
  const long size = syscall(SYS_getdents64, folder, buffer_.get(), kBufferBytes);
  return size > 0 ? static_cast<std::size_t>(size) : 0;
}

void BareWalk::keep(std::uint32_t folder, std::string_view name, const struct statx& status) {
  ++file_count_;
  char* room = room_for(sizeof(Row) + name.size());
  new (room) Row{status.stx_size,
                 ticks(status.stx_btime),
                 ticks(status.stx_atime),
                 ticks(status.stx_mtime),
                 folder,
                 static_cast<std::uint32_t>(name.size())};
  std::memcpy(room + sizeof(Row), name.data(), name.size());
}

char* BareWalk::room_for(std::size_t bytes) {
  bytes = (bytes + 7) & ~std::size_t{7};
  if (bytes > left_) {
    blocks_.push_back(std::make_unique_for_overwrite<char[]>(kBlockBytes));
    next_ = blocks_.back().get();
    left_ = kBlockBytes;
  }
  char* room = next_;
  next_ += bytes;
  left_ -= bytes;
  return room;
}

std::size_t walk_bare(const std::string& folder) {
  static std::unique_ptr<BareWalk> walk;
  walk = std::make_unique<BareWalk>(folder);
  return walk->file_count();
}

}  // namespace quillvane::bench
