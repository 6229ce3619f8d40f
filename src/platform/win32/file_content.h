// Whole files, read and replaced.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillvane {

[[nodiscard]] std::optional<std::string> read_whole_file(const std::wstring& path);

// Writes a file beside `path` and puts it in its place when it is complete and on the disk. False,
// with everything as it was, when either fails. A file that is read-only or in use is not replaced.
[[nodiscard]] bool replace_whole_file(const std::wstring& path, std::string_view content);

}  // namespace quillvane
