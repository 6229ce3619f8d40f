// A file that is written beside another and then takes its place at one stroke.
//
// The names of such files are few and always the same, so that what a program that was killed left
// behind is found by the next, which takes it away. A file in work cannot be opened by others; one
// that can is a leftover. What bears such a name without being one, a link or a file with a second
// name, is left alone.
#pragma once

#include <windows.h>

#include <string>

#include "platform/win32/system_handle.h"

namespace quillvane {

struct FileBeside {
  std::wstring path;
  FileHandle file;  // may be written, renamed and removed; nobody else may open it
};

// Makes an empty file in a folder, whose path ends in a backslash. The handle is not valid when
// none can be made; GetLastError tells why.
[[nodiscard]] FileBeside make_file_beside(const std::wstring& folder);

// Gives an open file another path on the same disk; one that is there is replaced or ends it.
[[nodiscard]] bool move_file(HANDLE file, const std::wstring& path, bool replaces);

// Removes a file or an empty folder when its last handle is closed; a file that is read-only stays.
// The handle must allow that it is removed.
[[nodiscard]] bool remove_when_closed(HANDLE file);

}  // namespace quillvane
