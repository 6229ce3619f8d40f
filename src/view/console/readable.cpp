#include "view/console/readable.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

#include "platform/utf8.h"
#include "support/size_text.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::string_view kEllipsis = "...";

// Where each code point begins, and the end.
std::vector<std::size_t> code_point_starts(std::string_view text) {
  std::vector<std::size_t> starts{0};
  while (starts.back() < text.size()) {
    starts.push_back(starts.back() + decode_utf8(text, starts.back()).length);
  }
  return starts;
}

struct CodePoints {
  char32_t first;
  char32_t last;
};

constexpr CodePoints kUpsetting[] = {
    {0x00, 0x1F},      // controls of the first set
    {0x7F, 0x9F},      // DEL and the controls of the second set
    {0x061C, 0x061C},  // marks of direction from here on
    {0x200E, 0x200F}, {0x202A, 0x202E}, {0x2066, 0x2069},
};

void append_hex(std::uint32_t number, int digits, std::string& out) {
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
    out.push_back("0123456789ABCDEF"[(number >> shift) & 0xF]);
  }
}

// "<1B>" for a byte, "<U+202E>" for all else.
void append_written_out(char32_t value, bool is_byte, std::string& out) {
  out += is_byte ? "<" : "<U+";
  append_hex(static_cast<std::uint32_t>(value), is_byte ? 2 : 4, out);
  out += ">";
}

}  // namespace

bool upsets_terminal(char32_t code_point) {
  return std::any_of(std::begin(kUpsetting), std::end(kUpsetting), [=](const CodePoints& range) {
    return range.first <= code_point && code_point <= range.last;
  });
}

std::string readable_size(double bytes) {
  std::string text = NumberInKB(bytes, ".");
  return text.empty() ? number_text(bytes) + " B" : text;
}

std::string printable(std::string_view text) {
  std::string clean;
  clean.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint next = decode_utf8(text, at);
    if (!next.valid || upsets_terminal(next.value)) {
      append_written_out(next.value, !next.valid || next.length == 1, clean);
    } else {
      clean += text.substr(at, next.length);
    }
    at += next.length;
  }
  return clean;
}

std::string shown(std::string_view text, bool on_terminal) {
  return on_terminal ? printable(text) : std::string(text);
}

std::size_t columns_of(std::string_view text) { return code_point_starts(text).size() - 1; }

std::string padded(std::string text, std::size_t columns) {
  const std::size_t taken = columns_of(text);
  if (taken < columns) text.append(columns - taken, ' ');
  return text;
}

std::string right_aligned(std::string text, std::size_t columns) {
  const std::size_t taken = columns_of(text);
  if (taken < columns) text.insert(0, columns - taken, ' ');
  return text;
}

std::string shortened(std::string_view text, std::size_t columns) {
  const std::vector<std::size_t> starts = code_point_starts(text);
  const std::size_t length = starts.size() - 1;
  if (length <= columns) return std::string(text);
  if (columns <= kEllipsis.size()) return std::string(kEllipsis.substr(0, columns));
  const std::size_t kept = columns - kEllipsis.size();
  const std::size_t head = kept / 2;
  std::string result(text.substr(0, starts[head]));
  result += kEllipsis;
  result += text.substr(starts[length - (kept - head)]);
  return result;
}

}  // namespace quillvane
