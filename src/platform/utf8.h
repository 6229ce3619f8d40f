// Reading UTF-8 one code point at a time.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillvane {

struct DecodedCodePoint {
  char32_t value = 0;
  std::size_t length = 1;  // bytes taken
  bool valid = false;      // false: one byte that is no UTF-8, its value in `value`
};

// Decodes the code point that begins at `at`. Requires: at < text.size().
[[nodiscard]] DecodedCodePoint decode_utf8(std::string_view text, std::size_t at);

// Appends the code point in UTF-8.
void append_utf8(char32_t code_point, std::string& out);

// UTF-16 little-endian bytes (without byte order mark) to UTF-8; a lone surrogate becomes U+FFFD.
[[nodiscard]] std::string utf8_from_utf16le(std::string_view bytes);

// UTF-8 to UTF-16 little-endian bytes; bytes that are no UTF-8 become U+FFFD.
[[nodiscard]] std::string utf16le_from_utf8(std::string_view text);

}  // namespace quillvane
