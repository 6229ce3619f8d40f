// Reading a number from the head of a text.
#pragma once

#include <optional>
#include <string_view>

namespace quillvane {

// The number that `text` begins with, blanks inside passed over: a sign, digits with a point, an
// exponent; "&h" begins a hexadecimal and "&o" an octal number. What follows the number is
// ignored; 0 when there is none. Does not depend on the locale. All settings are read through this.
[[nodiscard]] double Val(std::string_view text);

// The same, where a text without a number is to be told from a 0.
[[nodiscard]] std::optional<double> number_at_head(std::string_view text);

}  // namespace quillvane
