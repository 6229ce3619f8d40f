#include "platform/folder/short_name.h"

#include <algorithm>

#include "platform/unicode_case.h"
#include "platform/utf8.h"

namespace quillvane {

namespace {

constexpr std::size_t kBaseLength = 8;
constexpr std::size_t kExtensionLength = 3;
constexpr std::size_t kBaseKept = 6;  // letters of the name before "~1"

// Characters that a long name may have and a short one may not; each becomes "_".
constexpr std::string_view kReplaced = "\"*+,/:;<=>?[\\]|";

bool fits_short_name(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte > 0x20 && byte < 0x7F && c != '.' && kReplaced.find(c) == std::string_view::npos;
}

bool all_fit(std::string_view text) {
  return std::all_of(text.begin(), text.end(), fits_short_name);
}

// The text in capitals without blanks and dots; a character that does not fit becomes "_".
std::string cleaned(std::string_view text) {
  std::string out;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCodePoint point = decode_utf8(text, at);
    const char c = text[at];
    at += point.length;
    if (c == ' ' || c == '.') continue;
    out += point.length == 1 && fits_short_name(c) ? c : '_';
  }
  return upper_case(out);
}

struct Parts {
  std::string_view base;
  std::string_view extension;  // without its dot
};

// Cut at the last dot; dots in front belong to the base.
Parts parts_of(std::string_view name) {
  const std::size_t front = std::min(name.find_first_not_of('.'), name.size());
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos || dot < front) return {name, {}};
  return {name.substr(0, dot), name.substr(dot + 1)};
}

}  // namespace

bool is_short_name(std::string_view name) {
  const std::size_t dot = name.find('.');
  const std::string_view base = name.substr(0, dot);
  if (base.empty() || base.size() > kBaseLength || !all_fit(base)) return false;
  if (dot == std::string_view::npos) return true;
  const std::string_view extension = name.substr(dot + 1);
  return !extension.empty() && extension.size() <= kExtensionLength && all_fit(extension);
}

std::string short_extension(std::string_view name) {
  const std::string extension = cleaned(parts_of(name).extension);
  return extension.empty() ? extension : "." + extension.substr(0, kExtensionLength);
}

void ShortNames::reserve(std::string_view short_name) { taken_.insert(upper_case(short_name)); }

std::string ShortNames::make(std::string_view name) {
  const std::string base = cleaned(parts_of(name).base).substr(0, kBaseKept);
  const std::string extension = short_extension(name);
  std::size_t& number = last_number_[base + extension];
  for (;;) {
    const std::string tail = "~" + std::to_string(++number);
    std::string made = base.substr(0, kBaseLength - tail.size());
    made.append(tail).append(extension);
    if (taken_.insert(made).second) return made;
  }
}

}  // namespace quillvane
