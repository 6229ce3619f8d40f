// Whether a name is there, asked by a lookup that knows patterns and attributes.
#pragma once

#include <cstdint>
#include <string>

#include "platform/file_system.h"

namespace quillvane {

// Whether a lookup of `path` finds a name. Files that are hidden or system, and folders, are found
// only when `mask` has those bits (kAttributeHidden, kAttributeSystem, kAttributeFolder). The last
// part may be a pattern; behind a backslash it is any name of that folder, the folder itself
// included where folders are asked for. Missing drives and whatever is no path have no names.
[[nodiscard]] bool finds_name(const FileSystem& files, const std::string& path, std::uint32_t mask);

}  // namespace quillvane
