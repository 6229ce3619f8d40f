// Which paths the program may open.
//
// The program lives by the limits of the 8-bit interface, whatever the machine's settings for long
// paths: what could not be opened when it was written is not found, listed or deleted now.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quillvane {

// A path of this many UTF-16 units or more cannot be opened: Windows' buffers hold 260 with the
// terminator.
inline constexpr std::size_t kPathLimit = 260;

// Whether the text is absolute and can mean no other file than it says, whatever its length.
[[nodiscard]] bool is_usable_path(std::string_view path);

// The path as Windows takes it; nothing when it is too long or not absolute. A path without a
// drive would mean the drive that the program happens to stand on.
[[nodiscard]] std::optional<std::wstring> openable_path(std::string_view path);

// `folder` with exactly one backslash at its end, ready to take a name; nothing as above.
[[nodiscard]] std::optional<std::wstring> folder_prefix(std::string_view folder);

}  // namespace quillvane
