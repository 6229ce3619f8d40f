#include "platform/folder/machine_paths.h"

#include <algorithm>

#include "platform/unicode_case.h"

namespace quillvane {

std::optional<WindowsPath> MachinePaths::parse(std::string_view text) const {
  if (!fits_path_limit(utf16_length(text))) return std::nullopt;
  auto path = parse_windows_path(text);
  if (path && machine_.is_64_bit) redirect_sysnative(*path);
  return path;
}

void MachinePaths::redirect_sysnative(WindowsPath& path) const {
  const auto variable =
      std::find_if(machine_.environment.begin(), machine_.environment.end(),
                   [](const auto& entry) { return same_name(entry.first, "WinDir"); });
  if (variable == machine_.environment.end()) return;
  auto folder = parse_windows_path(variable->second);
  if (!folder) return;
  folder->names.emplace_back("Sysnative");
  if (path.begins_with(*folder)) path.names[folder->names.size() - 1] = "System32";
}

DriveFolder MachinePaths::drive(char letter) const {
  const auto found =
      std::find_if(machine_.drives.begin(), machine_.drives.end(),
                   [letter](const MachineDrive& drive) { return drive.letter == letter; });
  return DriveFolder(found == machine_.drives.end() ? std::string() : found->folder);
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
