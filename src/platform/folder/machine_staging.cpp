#include "platform/folder/machine_staging.h"

#include <algorithm>
#include <cstddef>

#include "platform/folder/host_staging.h"
#include "platform/unicode_case.h"

namespace quillvane {

namespace {

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

}  // namespace

std::optional<std::string> host_path_of(const MachineState& machine, std::string_view path) {
  const MachineDrive* drive = find_drive(machine, path);
  if (drive == nullptr) return std::nullopt;
  std::string host = drive->folder;
  std::string_view rest = path.substr(2);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\\'), rest.size());
    const std::string_view name = rest.substr(0, end);
    if (!name.empty()) host = with_stored_name(host, name);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return host;
}

std::error_code stage_folder(const MachineState& machine, std::string_view path) {
  const auto host = host_path_of(machine, path);
  if (!host) return kNoSuchDrive;
  return make_host_folders(*host);
}

std::error_code stage_file(const MachineState& machine, std::string_view path,
                           const StagedContent& content) {
  const auto host = host_path_of(machine, path);
  if (!host) return kNoSuchDrive;
  if (const std::error_code failed = make_host_folders(host_folder_of(*host))) return failed;
  return make_host_file(*host, content);
}

std::error_code stage_junction(const MachineState& machine, std::string_view path,
                               std::string_view target) {
  const auto host = host_path_of(machine, path);
  const auto host_target = host_path_of(machine, target);
  if (!host || !host_target) return kNoSuchDrive;
  if (const std::error_code failed = make_host_folders(host_folder_of(*host))) return failed;
  return make_host_link(*host, *host_target);
}

}  // namespace quillvane
