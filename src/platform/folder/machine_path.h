// The paths of a machine folder's machine, as text: where on the host they lead is the file
// system's matter.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/folder/machine_state.h"
#include "platform/folder/windows_path.h"

namespace quillvane {

// Drive and names of a path that is short enough to be opened, "Sysnative" led to where a 32-bit
// program is led. Nothing for any other text.
[[nodiscard]] std::optional<WindowsPath> parse_machine_path(const MachineState& machine,
                                                            std::string_view text);

// The host folder of the drive; empty for a drive that the machine does not have.
[[nodiscard]] std::string drive_host_folder(const MachineState& machine, char letter);

}  // namespace quillvane
