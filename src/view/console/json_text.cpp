#include "view/console/json_text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "platform/utf8.h"
#include "view/console/readable.h"

namespace quillvane {

namespace {

// Up to here each whole number is a double of its own.
constexpr double kLargestExact = 9007199254740992.0;

// All of them have four digits.
void append_escape(char32_t code_point, std::string& out) {
  out += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) {
    out.push_back("0123456789abcdef"[(code_point >> shift) & 0xF]);
  }
}

}  // namespace

// Such a code point can only stand in a text there, where it may also be written as an escape.
std::string json_text(const Json& value) {
  const std::string plain = value.dump(-1, ' ', false, Json::error_handler_t::replace);
  const bool upsetting = std::any_of(plain.begin(), plain.end(), [](char c) {
    return static_cast<unsigned char>(c) >= 0x7F;  // or harmless and more than a byte
  });
  if (!upsetting) return plain;
  std::string text;
  text.reserve(plain.size());
  for (std::size_t at = 0; at < plain.size();) {
    const DecodedCodePoint next = decode_utf8(plain, at);
    if (upsets_terminal(next.value)) {
      append_escape(next.value, text);
    } else {
      text.append(plain, at, next.length);
    }
    at += next.length;
  }
  return text;
}

Json json_number(double number) {
  if (std::abs(number) <= kLargestExact && std::trunc(number) == number) {
    return static_cast<std::int64_t>(number);
  }
  return number;
}

}  // namespace quillvane
