// How long a path may be to be handed to a call of Windows' older kind, as all of the program's
// are.
#pragma once

#include <cstddef>
#include <string_view>

#include "platform/unicode_case.h"

namespace quillvane {

// Whether a path of so many UTF-16 units can be: it is below 260.
[[nodiscard]] constexpr bool fits_path_limit(std::size_t utf16_units) { return utf16_units < 260; }

// The same of a path in two parts. A unit takes a byte at least, so most paths need no count.
[[nodiscard]] inline bool fits_path_limit(std::string_view path, std::string_view rest = {}) {
  if (fits_path_limit(path.size() + rest.size())) return true;
  return fits_path_limit(utf16_length(path) + utf16_length(rest));
}

}  // namespace quillvane
