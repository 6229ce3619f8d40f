// Text for people: sizes, widths, and names that cannot upset a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillvane {

// "3.41 MB"; bytes where there is no unit.
[[nodiscard]] std::string readable_size(double bytes);

// The text as a terminal may be given it: a name cannot break a line, speak to the terminal or turn
// the direction of writing. Control characters of both sets, marks of direction and bytes that are
// no UTF-8 are written out as "<1B>", "<U+202E>", "<FF>", in signs that no name on Windows holds.
[[nodiscard]] std::string printable(std::string_view text);

// The same where a terminal stands behind the stream; otherwise the text as it is, so that another
// program gets the names themselves.
[[nodiscard]] std::string shown(std::string_view text, bool on_terminal);

// Whether a terminal or a reader could be misled by this code point.
[[nodiscard]] bool upsets_terminal(char32_t code_point);

// How many columns the text takes, one a code point; a byte that is no UTF-8 takes one.
[[nodiscard]] std::size_t columns_of(std::string_view text);

// The text with blanks behind it, or before it, up to `columns`.
[[nodiscard]] std::string padded(std::string text, std::size_t columns);
[[nodiscard]] std::string right_aligned(std::string text, std::size_t columns);

// The text cut down to `columns`, "..." in its middle for what was taken out.
[[nodiscard]] std::string shortened(std::string_view text, std::size_t columns);

}  // namespace quillvane
