#include "platform/utf8.h"

#include <cstdint>

namespace quillvane {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool is_continuation(unsigned char byte) { return (byte & 0xC0U) == 0x80U; }

}  // namespace

DecodedCodePoint decode_utf8(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t offset) {
    return static_cast<unsigned char>(text[at + offset]);
  };
  const unsigned char lead = byte(0);
  const DecodedCodePoint broken{lead, 1, false};
  if (lead < 0x80) return {lead, 1, true};

  std::size_t length = 0;
  char32_t value = 0;
  char32_t smallest = 0;
  if ((lead & 0xE0U) == 0xC0U) {
    length = 2, value = lead & 0x1FU, smallest = 0x80;
  } else if ((lead & 0xF0U) == 0xE0U) {
    length = 3, value = lead & 0x0FU, smallest = 0x800;
  } else if ((lead & 0xF8U) == 0xF0U) {
    length = 4, value = lead & 0x07U, smallest = 0x10000;
  } else {
    return broken;
  }
  if (text.size() - at < length) return broken;
  for (std::size_t i = 1; i < length; ++i) {
    if (!is_continuation(byte(i))) return broken;
    value = value << 6U | (byte(i) & 0x3FU);
  }
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  if (value < smallest || value > 0x10FFFF || surrogate) return broken;
  return {value, length, true};
}

void append_utf8(char32_t code_point, std::string& out) {
  const auto add = [&](char32_t byte) { out.push_back(static_cast<char>(byte)); };
  if (code_point < 0x80) {
    add(code_point);
  } else if (code_point < 0x800) {
    add(0xC0U | code_point >> 6U);
    add(0x80U | (code_point & 0x3FU));
  } else if (code_point < 0x10000) {
    add(0xE0U | code_point >> 12U);
    add(0x80U | (code_point >> 6U & 0x3FU));
    add(0x80U | (code_point & 0x3FU));
  } else {
    add(0xF0U | code_point >> 18U);
    add(0x80U | (code_point >> 12U & 0x3FU));
    add(0x80U | (code_point >> 6U & 0x3FU));
    add(0x80U | (code_point & 0x3FU));
  }
}

std::string utf8_from_utf16le(std::string_view bytes) {
  std::string out;
  const auto unit = [&](std::size_t at) {
    return static_cast<char32_t>(static_cast<unsigned char>(bytes[at]) |
                                 static_cast<unsigned char>(bytes[at + 1]) << 8U);
  };
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    const char32_t first = unit(at);
    const bool high = first >= 0xD800 && first <= 0xDBFF;
    const bool low = first >= 0xDC00 && first <= 0xDFFF;
    if (high && at + 3 < bytes.size()) {
      const char32_t second = unit(at + 2);
      if (second >= 0xDC00 && second <= 0xDFFF) {
        append_utf8(0x10000 + ((first - 0xD800) << 10U) + (second - 0xDC00), out);
        at += 2;
        continue;
      }
    }
    append_utf8(high || low ? kReplacement : first, out);
  }
  return out;
}

std::string utf16le_from_utf8(std::string_view text) {
  std::string out;
  const auto add = [&](char32_t unit) {
    out.push_back(static_cast<char>(unit & 0xFFU));
    out.push_back(static_cast<char>(unit >> 8U));
  };
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint point = decode_utf8(text, at);
    at += point.length;
    if (!point.valid) {
      add(kReplacement);
    } else if (point.value >= 0x10000) {
      add(0xD800 + ((point.value - 0x10000) >> 10U));
      add(0xDC00 + ((point.value - 0x10000) & 0x3FFU));
    } else {
      add(point.value);
    }
  }
  return out;
}

}  // namespace quillvane
