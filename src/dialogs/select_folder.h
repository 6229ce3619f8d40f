// The folder question of the small windows.
#pragma once

#include <optional>
#include <string>

#include "platform/platform.h"

namespace quillvane {

// Asks for any folder of this PC. The path as it was chosen; nothing when it holds blanks alone or
// the dialog was cancelled.
[[nodiscard]] std::optional<std::string> select_folder(const Platform& platform);

}  // namespace quillvane
