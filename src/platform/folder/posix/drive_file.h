// Whole contents of files on a drive.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/folder/posix/drive_folder.h"

namespace quillvane {

// Nothing when it is no file, cannot be read, or is larger than 1 GiB.
[[nodiscard]] std::optional<std::string> read_drive_file(const HostPlace& place);

// Whether it is a file whose content may be read now.
[[nodiscard]] bool can_read_drive_file(const HostPlace& place);

// Puts a file of this content under the entry's name. It is written beside and then takes the place
// of `old`, the file of that name or null, whose rights and attributes it gets. On failure the old
// file is untouched and nothing is left beside it.
[[nodiscard]] bool replace_drive_file(const HostEntry& entry, const HostPlace* old,
                                      std::string_view content);

}  // namespace quillvane
