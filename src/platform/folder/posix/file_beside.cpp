#include "platform/folder/posix/file_beside.h"

#include <fcntl.h>
#include <stdio.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>
#include <string_view>
#include <utility>

namespace quillvane {

namespace {

// So many files can be written into one folder at the same time, by as many programs.
constexpr int kMostNames = 64;

std::error_code last_error() { return {errno, std::generic_category()}; }

bool lock(int file) { return flock(file, LOCK_EX | LOCK_NB) == 0; }

bool is_same_file(const struct stat& left, const struct stat& right) {
  return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

// Removes a file that nobody works on any more; false for whatever else bears the name.
bool remove_leftover(int folder, const std::string& name) {
  const Descriptor left(
      openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status = {};
  if (!left.is_open() || fstat(left.number(), &status) != 0) return false;
  if (!S_ISREG(status.st_mode) || status.st_nlink != 1 || status.st_uid != geteuid()) return false;
  if (!lock(left.number())) return false;
  struct stat named = {};
  return fstatat(folder, name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
         is_same_file(status, named) && unlinkat(folder, name.c_str(), 0) == 0;
}

}  // namespace

FileBeside::FileBeside(int folder, mode_t mode) : folder_(folder) {
  for (int number = 1; number <= kMostNames; ++number) {
    name_ = ".quillvane-" + std::to_string(number) + ".new";
    if (make(mode)) return;
    if (errno != EEXIST) {
      problem_ = last_error();
      return;
    }
    if (remove_leftover(folder_, name_) && make(mode)) return;
  }
  problem_ = std::make_error_code(std::errc::file_exists);
}

bool FileBeside::make(mode_t mode) {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
  Descriptor file(openat(folder_, name_.c_str(), kFlags, mode));
  if (!file.is_open()) return false;
  // Until it was locked, another program could take it for a leftover.
  struct stat status = {};
  const bool taken = !lock(file.number()) && errno == EWOULDBLOCK;
  if (taken || fstat(file.number(), &status) != 0 || status.st_nlink == 0) {
    errno = EEXIST;
    return false;
  }
  file_ = std::move(file);
  return true;
}

FileBeside::~FileBeside() {
  if (file_.is_open() && !in_place_) unlinkat(folder_, name_.c_str(), 0);
}

std::error_code FileBeside::put_in_place(const std::string& name) {
  if (fsync(file_.number()) != 0) return last_error();
  if (renameat(folder_, name_.c_str(), folder_, name.c_str()) != 0) return last_error();
  in_place_ = true;
  const Descriptor readable(openat(folder_, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (readable.is_open()) fsync(readable.number());  // the name lasts too
  return {};
}

bool write_all(int file, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = write(file, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

}  // namespace quillvane
