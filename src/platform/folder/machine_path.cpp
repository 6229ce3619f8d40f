#include "platform/folder/machine_path.h"

#include <algorithm>

#include "platform/unicode_case.h"

namespace quillvane {

namespace {

void redirect_sysnative(const MachineState& machine, WindowsPath& path) {
  const auto variable =
      std::find_if(machine.environment.begin(), machine.environment.end(),
                   [](const auto& entry) { return same_name(entry.first, "WinDir"); });
  if (variable == machine.environment.end()) return;
  auto folder = parse_windows_path(variable->second);
  if (!folder) return;
  folder->names.emplace_back("Sysnative");
  if (path.begins_with(*folder)) path.names[folder->names.size() - 1] = "System32";
}

}  // namespace

std::optional<WindowsPath> parse_machine_path(const MachineState& machine, std::string_view text) {
  if (!fits_path_limit(text)) return std::nullopt;
  auto path = parse_windows_path(text);
  if (path && machine.is_64_bit) redirect_sysnative(machine, *path);
  return path;
}

std::string drive_host_folder(const MachineState& machine, char letter) {
  const auto found =
      std::find_if(machine.drives.begin(), machine.drives.end(),
                   [letter](const MachineDrive& drive) { return drive.letter == letter; });
  return found == machine.drives.end() ? std::string() : found->folder;
}

}  // namespace quillvane
