// The border between the program's text and Windows' own.
//
// Inside the program text is UTF-8; the wide functions of Windows take and give UTF-16. What one
// side cannot say becomes U+FFFD: a name with such a substitute is no longer found on the disk.
#pragma once

#include <string>
#include <string_view>

namespace quillvane {

[[nodiscard]] std::wstring widen(std::string_view text);

[[nodiscard]] std::string narrow(std::wstring_view text);

// Appends narrow(text) to `out`; for loops that keep their buffer.
void append_narrow(std::wstring_view text, std::string& out);

}  // namespace quillvane
