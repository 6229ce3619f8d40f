// machine.json of a machine folder: what of a machine is neither a file nor in the registry.
// docs/formats.md tells its keys. Every key may be absent; one that is not known is refused.
//
// What is wrong is told in one line that names file, key and reason:
// "machine.json: drives[1].type: must be one of fixed, removable, remote, cdrom, ramdisk".
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/folder/machine_state.h"

namespace quillvane {

// What is larger describes no machine.
inline constexpr std::size_t kMostMachineJson = std::size_t{64} << 20U;

// Reads the text of a machine.json. `dir` is the machine folder, which drive folders are relative
// to.
[[nodiscard]] std::variant<MachineState, std::string> parse_machine_json(std::string_view text,
                                                                         const std::string& dir);

// Reads machine.json of the machine folder `dir`; without the file, a machine of defaults. A
// drive's folder that is named there and is not there itself is a mistake too.
[[nodiscard]] std::variant<MachineState, std::string> load_machine_json(const std::string& dir);

// Brings machine.json up to date: each key whose content differs from `state` is written anew, all
// others stay as they are, and with no difference so does the file. Replaces the file at one
// stroke. Answers what went wrong.
[[nodiscard]] std::optional<std::string> save_machine_json(const std::string& dir,
                                                           const MachineState& state);

// Takes the processes and cache entries out of machine.json that `state` holds no more. What was
// added to `state` since it was loaded, as scripts do, does not get into the file. Answers what
// went wrong.
[[nodiscard]] std::optional<std::string> save_removals(const std::string& dir,
                                                       const MachineState& state);

}  // namespace quillvane
