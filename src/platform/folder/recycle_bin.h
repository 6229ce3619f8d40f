// The recycle bin of a machine folder: what Windows keeps of a file that was moved there.
#pragma once

#include <string>

#include "platform/file_system.h"

namespace quillvane {

// Moves a file into the bin of its drive: "$R" and a number with its extension, beside a "$I" that
// tells its path, its size and when it went. False when it stays where it is.
[[nodiscard]] bool move_to_recycle_bin(FileSystem& files, const std::string& path, FileTime now);

}  // namespace quillvane
