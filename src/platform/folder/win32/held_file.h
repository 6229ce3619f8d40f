// What is done to files of a drive, through their handles.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/file_content.h"
#include "platform/file_time.h"
#include "platform/folder/win32/host_drive.h"

namespace quillvane {

// Attributes as a machine tells them: folder, or those that can be set; 0x80 without any.
[[nodiscard]] std::uint32_t machine_attributes(const HostStatus& status);

// Replaces the attributes that can be set and, when it is given, the time of the last writing.
// Requires: opened with Access::kChanged or kRemoved.
[[nodiscard]] bool change(const HeldPlace& place, std::uint32_t attributes,
                          std::optional<FILETIME> written = std::nullopt);

enum class Taken { kFails, kIsReplaced };

// Gives a file the name `name` in `folder`. Requires: opened with Access::kMoved.
[[nodiscard]] bool move_to(HANDLE file, const HeldPlace& folder, const std::wstring& name,
                           Taken taken);

// The content of a file opened with Access::kRead.
[[nodiscard]] FileContent read_content(const HeldPlace& file);

// Puts a file of this content under the entry's name, with these attributes. It is written beside
// and then takes the place of the file of that name, if there may be one. On failure the old file
// is untouched and nothing is left beside it. Requires: the old file is not held open.
[[nodiscard]] bool put_file(const HeldEntry& entry, Taken taken, std::uint32_t attributes,
                            std::string_view content);

}  // namespace quillvane
