// Upper and lower case of text in UTF-8, for all letters of Unicode's simple mapping, and the order
// of names on a Windows disk. Nothing here depends on the locale. Bytes that are no UTF-8 are kept
// as they are.
#pragma once

#include <string>
#include <string_view>

namespace quillvane {

// The simple mapping of one code point; a code point without one maps to itself.
[[nodiscard]] char32_t to_lower(char32_t code_point);
[[nodiscard]] char32_t to_upper(char32_t code_point);

[[nodiscard]] std::string lower_case(std::string_view text);
[[nodiscard]] std::string upper_case(std::string_view text);

// Appends lower_case(text) to `out`; for loops that keep their buffer.
void append_lower_case(std::string_view text, std::string& out);

// Whether two names are the same to Windows: equal but for case.
[[nodiscard]] bool same_name(std::string_view left, std::string_view right);

// The order of names in an NTFS folder and among registry keys: by the UTF-16 units of the
// upper-case name. Below 0, 0 or above 0, as strcmp.
[[nodiscard]] int compare_names(std::string_view left, std::string_view right);

// Length of the text in UTF-16 units, which is how Windows counts a path. A byte that is no UTF-8
// counts as one.
[[nodiscard]] std::size_t utf16_length(std::string_view text);

}  // namespace quillvane
