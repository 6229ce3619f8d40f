#include "platform/folder/machine_staging.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <time.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <fstream>

#include "platform/unicode_case.h"

namespace quillvane {

namespace {

namespace fs = std::filesystem;

const std::error_code kNoSuchDrive = std::make_error_code(std::errc::no_such_device);

const MachineDrive* find_drive(const MachineState& machine, std::string_view path) {
  if (path.size() < 2 || path[1] != ':') return nullptr;
  if (path.size() > 2 && path[2] != '\\') return nullptr;
  const auto drive = std::find_if(
      machine.drives.begin(), machine.drives.end(), [path](const MachineDrive& candidate) {
        return same_name(path.substr(0, 1), std::string_view(&candidate.letter, 1));
      });
  return drive == machine.drives.end() ? nullptr : &*drive;
}

// `name` as the host folder has it, an exact match before one that differs by case.
std::string name_in(const fs::path& folder, std::string_view name) {
  std::error_code failed;
  if (fs::exists(fs::symlink_status(folder / name, failed))) return std::string(name);
  for (const auto& entry : fs::directory_iterator(folder, failed)) {
    std::string candidate = entry.path().filename().string();
    if (same_name(candidate, name)) return candidate;
  }
  return std::string(name);
}

std::error_code set_times(const fs::path& file, FileTime time) {
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

std::optional<std::string> host_path_of(const MachineState& machine, std::string_view path) {
  const MachineDrive* drive = find_drive(machine, path);
  if (drive == nullptr) return std::nullopt;
  fs::path host = drive->folder;
  std::string_view rest = path.substr(2);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\\'), rest.size());
    const std::string_view name = rest.substr(0, end);
    if (!name.empty()) host /= name_in(host, name);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return host.string();
}

std::error_code stage_folder(const MachineState& machine, std::string_view path) {
  const auto host = host_path_of(machine, path);
  if (!host) return kNoSuchDrive;
  std::error_code failed;
  fs::create_directories(*host, failed);
  return failed;
}

std::error_code stage_file(const MachineState& machine, std::string_view path,
                           const StagedContent& content) {
  const auto host = host_path_of(machine, path);
  if (!host) return kNoSuchDrive;
  const fs::path file = *host;
  std::error_code failed;
  fs::create_directories(file.parent_path(), failed);
  if (failed) return failed;

  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(content.text.data(), static_cast<std::streamsize>(content.text.size()));
  out.close();
  if (!out) return std::make_error_code(std::errc::io_error);
  if (content.bytes > content.text.size()) fs::resize_file(file, content.bytes, failed);
  if (!failed && content.time) failed = set_times(file, *content.time);
  return failed;
}

std::error_code stage_junction(const MachineState& machine, std::string_view path,
                               std::string_view target) {
  const auto host = host_path_of(machine, path);
  const auto host_target = host_path_of(machine, target);
  if (!host || !host_target) return kNoSuchDrive;
  const fs::path link = *host;
  std::error_code failed;
  fs::create_directories(link.parent_path(), failed);
  // Relative, so that the machine folder can be moved.
  if (!failed) {
    fs::create_symlink(fs::path(*host_target).lexically_relative(link.parent_path()), link, failed);
  }
  return failed;
}

}  // namespace quillvane
