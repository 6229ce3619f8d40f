// Whole files, read and replaced.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/file_content.h"

namespace quillvane {

// Why a file could not be read, from the error of Windows. For what is missing, the last name or
// one on the way, that is kMissing.
[[nodiscard]] ReadFailure read_failure(DWORD error);

// What an open file holds from where it stands on; kTooLarge beyond `most` bytes.
[[nodiscard]] FileContent read_to_end(HANDLE file, std::uint64_t most = kMostFileContent);

// Writes all of it and sees that it is on the disk.
[[nodiscard]] bool write_to_disk(HANDLE file, std::string_view content);

[[nodiscard]] FileContent read_whole_file(const std::wstring& path);

// Writes a file beside `path` and puts it in its place when it is complete and on the disk. False,
// with everything as it was, when either fails. A file that is read-only or in use is not replaced.
[[nodiscard]] bool replace_whole_file(const std::wstring& path, std::string_view content);

}  // namespace quillvane
