// The folder of the demo machine, which the console uses when no other was named.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace quillvane {

// Reads a variable of the process environment; nothing when it is not set.
using HostVariable = std::function<std::optional<std::string>(const char* name)>;

// Below the user's data folder: $XDG_DATA_HOME, which counts only when it is absolute, else
// ~/.local/share. Nothing when neither is known.
[[nodiscard]] std::optional<std::string> demo_folder(const HostVariable& variable);

}  // namespace quillvane
