#include "platform/folder/host_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <optional>
#include <utility>

namespace quillvane {

namespace {

std::error_code last_error() { return {errno, std::generic_category()}; }

class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() { close(); }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  [[nodiscard]] bool is_open() const { return number_ >= 0; }
  [[nodiscard]] int number() const { return number_; }
  // False when the system reports a failed write at last.
  bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

 private:
  int number_;
};

bool write_all(int descriptor, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = ::write(descriptor, content.data(), content.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

// Writes a file that was not there before; `mode` nothing leaves it to the umask.
std::error_code write_new_file(const std::string& path, std::string_view content,
                               std::optional<mode_t> mode) {
  Descriptor file(
      ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0666));
  if (!file.is_open()) return last_error();
  if (mode && ::fchmod(file.number(), *mode) != 0) return last_error();
  if (!write_all(file.number(), content)) return last_error();
  if (::fsync(file.number()) != 0 || !file.close()) return last_error();
  return {};
}

}  // namespace

std::variant<std::string, std::error_code> read_host_file(const std::string& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (!file.is_open()) return last_error();
  std::string content;
  std::array<char, 65536> buffer;
  for (;;) {
    const ssize_t count = ::read(file.number(), buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return last_error();
    if (count == 0) return content;
    content.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

std::error_code replace_host_file(const std::string& path, std::string_view content) {
  struct stat old = {};
  std::optional<mode_t> mode;
  if (::stat(path.c_str(), &old) == 0) mode = old.st_mode & 07777U;

  // The process's number keeps two programs that write at once out of each other's file.
  const std::string beside = path + "." + std::to_string(::getpid()) + ".new";
  std::error_code error = write_new_file(beside, content, mode);
  if (!error && ::rename(beside.c_str(), path.c_str()) != 0) error = last_error();
  if (error) ::unlink(beside.c_str());
  return error;
}

}  // namespace quillvane
