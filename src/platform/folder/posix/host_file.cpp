#include "platform/folder/host_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <filesystem>

#include "platform/folder/posix/file_beside.h"

namespace quillvane {

namespace {

std::error_code last_error() { return {errno, std::generic_category()}; }

}  // namespace

std::variant<std::string, std::error_code> read_host_file(const std::string& path,
                                                          std::size_t most_bytes) {
  // A pipe would let the call wait for a writer.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
  if (!file.is_open()) return last_error();
  struct stat status = {};
  if (::fstat(file.number(), &status) != 0) return last_error();
  if (S_ISDIR(status.st_mode)) return std::make_error_code(std::errc::is_a_directory);
  if (!S_ISREG(status.st_mode)) return std::make_error_code(std::errc::no_such_device);

  std::string content;
  std::array<char, 65536> buffer;
  for (;;) {
    const ssize_t count = ::read(file.number(), buffer.data(), buffer.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return last_error();
    if (count == 0) return content;
    content.append(buffer.data(), static_cast<std::size_t>(count));
    if (content.size() > most_bytes) return std::make_error_code(std::errc::file_too_large);
  }
}

std::error_code replace_host_file(const std::string& path, std::string_view content) {
  const std::filesystem::path whole = path;
  const std::string above = whole.parent_path().empty() ? "." : whole.parent_path().string();
  const Descriptor folder(::open(above.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
  if (!folder.is_open()) return last_error();

  struct stat old = {};
  const bool is_new = ::stat(path.c_str(), &old) != 0;
  // What others may not read they cannot read meanwhile either.
  FileBeside beside(folder.number(), is_new ? 0666 : 0600);
  if (beside.problem()) return beside.problem();
  if (!is_new && ::fchmod(beside.file(), old.st_mode & 07777U) != 0) return last_error();
  if (!write_all(beside.file(), content)) return last_error();
  return beside.put_in_place(whole.filename().string());
}

std::optional<std::uint64_t> host_link_count(const std::string& path) {
  struct stat status = {};
  if (::lstat(path.c_str(), &status) != 0) return std::nullopt;
  return status.st_nlink;
}

}  // namespace quillvane
