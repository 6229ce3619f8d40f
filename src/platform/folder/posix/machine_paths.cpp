#include "platform/folder/posix/machine_paths.h"

#include <algorithm>

#include "platform/folder/machine_path.h"

namespace quillvane {

std::optional<WindowsPath> MachinePaths::parse(std::string_view text) const {
  return parse_machine_path(machine_, text);
}

std::string MachinePaths::host_folder(char letter) const {
  return drive_host_folder(machine_, letter);
}

DriveFolder MachinePaths::drive(char letter) const {
  return DriveFolder(host_folder(letter), letter, names_);
}

std::optional<HostPlace> MachinePaths::find(std::string_view path) const {
  const auto parsed = parse(path);
  return parsed ? drive(parsed->drive).find(parsed->names) : std::nullopt;
}

bool MachinePaths::is_in_use(const HostIdentity& file) const {
  return std::any_of(machine_.in_use.begin(), machine_.in_use.end(), [&](const std::string& path) {
    const auto place = find(path);
    return place && HostIdentity::of(place->status) == file;
  });
}

std::vector<HostIdentity> MachinePaths::denied() const {
  std::vector<HostIdentity> folders;
  for (const std::string& path : machine_.denied) {
    if (const auto place = find(path)) folders.push_back(HostIdentity::of(place->status));
  }
  return folders;
}

}  // namespace quillvane
