#include "platform/unicode_case.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <utility>

#include "platform/utf8.h"

namespace quillvane {

namespace {

// Every step-th code point from first to last maps to itself plus delta.
struct CaseRun {
  char32_t first;
  char32_t last;
  char32_t step;
  std::int32_t delta;
};

#include "platform/unicode_case_table.inc"

char32_t map(std::span<const CaseRun> runs, char32_t code_point) {
  const auto run = std::lower_bound(runs.begin(), runs.end(), code_point,
                                    [](const CaseRun& r, char32_t c) { return r.last < c; });
  if (run == runs.end() || code_point < run->first) return code_point;
  if ((code_point - run->first) % run->step != 0) return code_point;
  return static_cast<char32_t>(static_cast<std::int32_t>(code_point) + run->delta);
}

bool is_ascii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

char ascii_lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }
char ascii_upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }

template <typename MapAscii, typename MapPoint>
void append_mapped(std::string_view text, std::string& out, MapAscii map_ascii,
                   MapPoint map_point) {
  if (is_ascii(text)) {
    const std::size_t old_size = out.size();
    out.resize(old_size + text.size());
    std::transform(text.begin(), text.end(), out.begin() + static_cast<std::ptrdiff_t>(old_size),
                   map_ascii);
    return;
  }
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint point = decode_utf8(text, at);
    if (point.valid) {
      append_utf8(map_point(point.value), out);
    } else {
      out.push_back(text[at]);
    }
    at += point.length;
  }
}

// The UTF-16 units of an upper-case name, one after the other.
class UpperUnits {
 public:
  explicit UpperUnits(std::string_view text) : text_(text) {}

  // The next unit, or -1 at the end.
  std::int32_t next() {
    if (low_surrogate_ != 0) return std::exchange(low_surrogate_, 0);
    if (at_ >= text_.size()) return -1;
    const DecodedCodePoint point = decode_utf8(text_, at_);
    at_ += point.length;
    const char32_t upper = point.valid ? to_upper(point.value) : point.value;
    if (upper < 0x10000) return static_cast<std::int32_t>(upper);
    low_surrogate_ = static_cast<std::int32_t>(0xDC00 + ((upper - 0x10000) & 0x3FFU));
    return static_cast<std::int32_t>(0xD800 + ((upper - 0x10000) >> 10U));
  }

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  std::int32_t low_surrogate_ = 0;
};

}  // namespace

char32_t to_lower(char32_t code_point) {
  if (code_point < 0x80) {
    return static_cast<char32_t>(ascii_lower(static_cast<char>(code_point)));
  }
  return map(kLowerRuns, code_point);
}

char32_t to_upper(char32_t code_point) {
  if (code_point < 0x80) {
    return static_cast<char32_t>(ascii_upper(static_cast<char>(code_point)));
  }
  return map(kUpperRuns, code_point);
}

void append_lower_case(std::string_view text, std::string& out) {
  append_mapped(text, out, ascii_lower, to_lower);
}

std::string lower_case(std::string_view text) {
  std::string out;
  append_lower_case(text, out);
  return out;
}

std::string upper_case(std::string_view text) {
  std::string out;
  append_mapped(text, out, ascii_upper, to_upper);
  return out;
}

bool same_name(std::string_view left, std::string_view right) {
  return compare_names(left, right) == 0;
}

int compare_names(std::string_view left, std::string_view right) {
  const std::size_t common = std::min(left.size(), right.size());
  for (std::size_t i = 0; i < common; ++i) {
    const auto a = static_cast<unsigned char>(left[i]);
    const auto b = static_cast<unsigned char>(right[i]);
    if (a >= 0x80 || b >= 0x80) break;
    const int difference = ascii_upper(left[i]) - ascii_upper(right[i]);
    if (difference != 0) return difference;
    if (i + 1 == common) {
      return left.size() == right.size() ? 0 : left.size() < right.size() ? -1 : 1;
    }
  }
  UpperUnits left_units(left);
  UpperUnits right_units(right);
  for (;;) {
    const std::int32_t a = left_units.next();
    const std::int32_t b = right_units.next();
    if (a != b) return a < b ? -1 : 1;
    if (a < 0) return 0;
  }
}

std::size_t utf16_length(std::string_view text) {
  std::size_t units = 0;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint point = decode_utf8(text, at);
    at += point.length;
    units += point.valid && point.value >= 0x10000 ? 2 : 1;
  }
  return units;
}

}  // namespace quillvane
