// Removing one file, and the test whether it has gone.
#pragma once

#include <string>

#include "platform/platform.h"

namespace quillvane {

// Removes a file unless it is read-only, in use, or the rights are missing. Whether it is gone
// StillThere tells.
RemoveResult DeleteAFile(const Platform& platform, std::string& path);

// Whether the file is still there: it has a length, can be opened, or is listed as a file that is
// neither hidden nor of the system.
[[nodiscard]] bool StillThere(const Platform& platform, std::string path);

}  // namespace quillvane
