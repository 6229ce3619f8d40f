// Whole contents of files on a drive.
#pragma once

#include <functional>
#include <string_view>

#include "platform/file_content.h"
#include "platform/folder/posix/drive_folder.h"

namespace quillvane {

// Why something could not be read, from the host's error.
[[nodiscard]] ReadFailure read_failure(int error);

// What the file holds. What Windows does not know, a pipe say, is unreadable.
[[nodiscard]] FileContent read_drive_file(const HostPlace& place);

// Whether it is a file whose content may be read now.
[[nodiscard]] bool can_read_drive_file(const HostPlace& place);

// Writes what a new file shall hold to its descriptor; false when that fails.
using FillFile = std::function<bool(int file)>;

// What `original` holds, without its holes. The place is used when the file is filled.
[[nodiscard]] FillFile content_of(const HostPlace& original);
[[nodiscard]] FillFile text_of(std::string_view content);

// Puts a new file under the entry's name. It is filled beside and then takes the place
// of `old`, the file of that name or null, whose rights and attributes it gets. On failure the old
// file is untouched and nothing is left beside it.
[[nodiscard]] bool replace_drive_file(const HostEntry& entry, const HostPlace* old,
                                      const FillFile& fill);

}  // namespace quillvane
