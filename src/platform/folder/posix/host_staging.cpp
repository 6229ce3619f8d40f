#include "platform/folder/host_staging.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "platform/unicode_case.h"

namespace quillvane {

namespace {

namespace fs = std::filesystem;

std::error_code set_times(const std::string& file, FileTime time) {
  constexpr std::int64_t kTicksPerSecond = 10'000'000;
  constexpr std::int64_t kSecondsTo1970 = 11'644'473'600;  // since 1601
  const std::int64_t seconds = time.ticks / kTicksPerSecond - kSecondsTo1970;
  const std::int64_t rest = time.ticks % kTicksPerSecond * 100;
  const timespec stamp{static_cast<time_t>(seconds), static_cast<long>(rest)};
  const timespec both[2] = {stamp, stamp};
  if (::utimensat(AT_FDCWD, file.c_str(), both, 0) == 0) return {};
  return {errno, std::generic_category()};
}

}  // namespace

std::string with_stored_name(const std::string& host_folder, std::string_view name) {
  const fs::path folder = host_folder;
  std::error_code failed;
  if (!fs::exists(fs::symlink_status(folder / name, failed))) {
    for (const auto& entry : fs::directory_iterator(folder, failed)) {
      if (same_name(entry.path().filename().string(), name)) return entry.path().string();
    }
  }
  return (folder / name).string();
}

std::string host_folder_of(const std::string& host_path) {
  return fs::path(host_path).parent_path().string();
}

std::error_code make_host_folders(const std::string& host_folder) {
  std::error_code failed;
  fs::create_directories(host_folder, failed);
  return failed;
}

std::error_code make_host_file(const std::string& host_file, const StagedContent& content) {
  std::ofstream out(host_file, std::ios::binary | std::ios::trunc);
  out.write(content.text.data(), static_cast<std::streamsize>(content.text.size()));
  out.close();
  if (!out) return std::make_error_code(std::errc::io_error);
  std::error_code failed;
  if (content.bytes > content.text.size()) fs::resize_file(host_file, content.bytes, failed);
  if (!failed && content.time) failed = set_times(host_file, *content.time);
  return failed;
}

std::error_code make_host_link(const std::string& host_link, const std::string& host_target) {
  std::error_code failed;
  // Relative, so that the machine folder can be moved.
  fs::create_symlink(fs::path(host_target).lexically_relative(fs::path(host_link).parent_path()),
                     host_link, failed);
  return failed;
}

}  // namespace quillvane
