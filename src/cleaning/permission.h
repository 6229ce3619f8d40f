// Access to files of the recycle bin.
#pragma once

#include <string>

#include "platform/platform.h"

namespace quillvane {

// Gives the current account all rights on a path in the recycle bin; any other path is left alone
// without a look at it. `path` loses the blanks at its ends when it is in the bin.
void changepermission(const Platform& platform, std::string& path);

// Whether the path is one of the recycle bin.
[[nodiscard]] bool in_recycle_bin(std::string_view path);

}  // namespace quillvane
