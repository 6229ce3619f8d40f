// Numbers and texts as they stand in a shell link.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/code_page.h"
#include "platform/utf8.h"

namespace quillvane {

template <typename Number>
void put_number(std::string& bytes, Number number) {
  auto value = static_cast<std::uint64_t>(number);
  for (std::size_t i = 0; i < sizeof(Number); ++i, value >>= 8U) {
    bytes.push_back(static_cast<char>(value & 0xFFU));
  }
}

// Writes over the number at `at`, where one of that size stands.
template <typename Number>
void set_number(std::string& bytes, std::size_t at, Number number) {
  std::string text;
  put_number(text, number);
  bytes.replace(at, text.size(), text);
}

// What the page cannot say becomes "?": the same text stands beside it in UTF-16.
[[nodiscard]] inline std::string narrow_text(std::string_view text, const CodePage& page) {
  if (auto whole = page.encode(text)) return *whole;
  std::string bytes;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = decode_utf8(text, at).length;
    bytes += page.encode(text.substr(at, length)).value_or("?");
    at += length;
  }
  return bytes;
}

inline void put_narrow(std::string& bytes, std::string_view text, const CodePage& page) {
  bytes += narrow_text(text, page);
  bytes.push_back('\0');
}

// Begins at an even place.
inline void put_wide(std::string& bytes, std::string_view text) {
  bytes += utf16le_from_utf8(text);
  bytes.append(2, '\0');
}

inline void make_even(std::string& bytes) {
  if (bytes.size() % 2 != 0) bytes.push_back('\0');
}

}  // namespace quillvane
