// Whole files, read and replaced.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillvane {

// What an open file holds from where it stands on; nothing when it cannot be read or is more than
// `most` bytes.
[[nodiscard]] std::optional<std::string> read_to_end(HANDLE file, std::uint64_t most);

// Writes all of it and sees that it is on the disk.
[[nodiscard]] bool write_to_disk(HANDLE file, std::string_view content);

[[nodiscard]] std::optional<std::string> read_whole_file(const std::wstring& path);

// Writes a file beside `path` and puts it in its place when it is complete and on the disk. False,
// with everything as it was, when either fails. A file that is read-only or in use is not replaced.
[[nodiscard]] bool replace_whole_file(const std::wstring& path, std::string_view content);

}  // namespace quillvane
