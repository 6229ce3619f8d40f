// Text for people: sizes, widths, and names that cannot upset a terminal.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillvane {

// "3.41 MB"; bytes where there is no unit.
[[nodiscard]] std::string readable_size(double bytes);

// Control characters become "?": a name cannot break a line or speak to the terminal.
[[nodiscard]] std::string printable(std::string_view text);

// How many columns the text takes, one a code point; a byte that is no UTF-8 takes one.
[[nodiscard]] std::size_t columns_of(std::string_view text);

// The text with blanks behind it, or before it, up to `columns`.
[[nodiscard]] std::string padded(std::string text, std::size_t columns);
[[nodiscard]] std::string right_aligned(std::string text, std::size_t columns);

// The text cut down to `columns`, "..." in its middle for what was taken out.
[[nodiscard]] std::string shortened(std::string_view text, std::size_t columns);

}  // namespace quillvane
