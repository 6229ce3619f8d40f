#include "platform/folder/posix/drive_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "platform/folder/posix/file_attributes.h"
#include "platform/folder/posix/file_beside.h"

namespace quillvane {

namespace {

constexpr std::size_t kLeastRead = 4096;
constexpr std::size_t kCopiedAtATime = std::size_t{1} << 20U;

// The descriptor of a place is good for finding only; this leads to the same file.
Descriptor open_for_reading(const HostPlace& place) {
  const std::string path = "/proc/self/fd/" + std::to_string(place.object.number());
  return Descriptor(open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
}

FileContent read_to_end(int file, std::size_t expected) {
  std::string content;
  content.resize(expected + kLeastRead);
  std::size_t used = 0;
  for (;;) {
    if (used == content.size()) content.resize(2 * content.size());
    const ssize_t got = read(file, content.data() + used, content.size() - used);
    if (got < 0 && errno == EINTR) continue;
    if (got == 0) break;
    if (got < 0) return read_failure(errno);
    used += static_cast<std::size_t>(got);
    if (used > kMostFileContent) return ReadFailure::kTooLarge;
  }
  content.resize(used);
  return content;
}

// Copies the bytes from `begin` to before `end`, which lie at the same places in both files.
bool copy_extent(int from, int to, off_t begin, off_t end) {
  if (lseek(from, begin, SEEK_SET) < 0 || lseek(to, begin, SEEK_SET) < 0) return false;
  std::string buffer(kCopiedAtATime, '\0');
  while (begin < end) {
    const auto left = static_cast<std::size_t>(end - begin);
    const ssize_t got = read(from, buffer.data(), std::min(buffer.size(), left));
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return got == 0;  // it was cut meanwhile
    if (!write_all(to, std::string_view(buffer).substr(0, static_cast<std::size_t>(got)))) {
      return false;
    }
    begin += got;
  }
  return true;
}

// Copies a file extent by extent, so that one of many gigabytes without content takes no time.
bool copy_extents(int from, int to) {
  struct stat status;
  if (fstat(from, &status) != 0 || ftruncate(to, status.st_size) != 0) return false;
  for (off_t at = 0; at < status.st_size;) {
    const off_t begin = lseek(from, at, SEEK_DATA);
    if (begin < 0) return errno == ENXIO;  // nothing but a hole is left
    const off_t end = lseek(from, begin, SEEK_HOLE);
    if (end < 0 || !copy_extent(from, to, begin, end)) return false;
    at = end;
  }
  return true;
}

}  // namespace

ReadFailure read_failure(int error) {
  return error == EACCES || error == EPERM ? ReadFailure::kDenied : ReadFailure::kUnreadable;
}

bool can_read_drive_file(const HostPlace& place) {
  return is_file(place.status) && open_for_reading(place).is_open();
}

FileContent read_drive_file(const HostPlace& place) {
  if (is_folder(place.status)) return ReadFailure::kFolder;
  if (!is_file(place.status)) return ReadFailure::kUnreadable;
  if (place.status.stx_size > kMostFileContent) return ReadFailure::kTooLarge;
  const Descriptor file = open_for_reading(place);
  if (!file.is_open()) return read_failure(errno);
  return read_to_end(file.number(), place.status.stx_size);
}

FillFile text_of(std::string_view content) {
  return [content](int file) { return write_all(file, content); };
}

FillFile content_of(const HostPlace& original) {
  return [&original](int file) {
    if (!is_file(original.status)) return false;
    const Descriptor from = open_for_reading(original);
    return from.is_open() && copy_extents(from.number(), file);
  };
}

bool replace_drive_file(const HostEntry& entry, const HostPlace* old, const FillFile& fill) {
  FileBeside beside(entry.folder.object.number(), 0666);
  if (beside.problem() || !fill(beside.file())) return false;
  if (old != nullptr) {
    // Without the right to give files away it stays the writer's.
    [[maybe_unused]] const int owned =
        fchown(beside.file(), old->status.stx_uid, old->status.stx_gid);
    if (fchmod(beside.file(), old->status.stx_mode & 07777U) != 0) return false;
    copy_file_attributes(*old, beside.file());
  }
  return !beside.put_in_place(entry.name);
}

}  // namespace quillvane
