#include "support/like.h"

#include <cstddef>

#include "support/text.h"

namespace quillvane {

namespace {

bool is_continuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// Takes the character that `text` begins with. Requires: text is not empty.
std::string_view take_character(std::string_view& text) {
  std::size_t length = 1;
  while (length < text.size() && is_continuation(text[length])) ++length;
  const std::string_view character = text.substr(0, length);
  text.remove_prefix(length);
  return character;
}

struct Range {
  std::string_view first;
  std::string_view last;
};

// Takes a character or a range "a-c" from what stands between the brackets. Requires: set is not
// empty.
Range take_range(std::string_view& set) {
  const std::string_view first = take_character(set);
  if (set.size() < 2 || set[0] != '-') return {first, first};
  set.remove_prefix(1);
  return {first, take_character(set)};
}

// Takes what stands between the brackets. Requires: the pattern begins with "[" and is well formed.
std::string_view take_set(std::string_view& pattern) {
  const std::size_t end = pattern.find(']');
  const std::string_view set = pattern.substr(1, end - 1);
  pattern.remove_prefix(end + 1);
  return set;
}

bool is_well_formed(std::string_view pattern) {
  for (;;) {
    const std::size_t begin = pattern.find('[');
    if (begin == std::string_view::npos) return true;
    pattern.remove_prefix(begin);
    if (pattern.find(']') == std::string_view::npos) return false;
    std::string_view set = take_set(pattern);
    if (set.size() > 1 && set[0] == '!') set.remove_prefix(1);
    while (!set.empty()) {
      const Range range = take_range(set);
      if (range.last < range.first) return false;
    }
  }
}

bool in_set(std::string_view character, std::string_view set) {
  const bool negated = set.size() > 1 && set[0] == '!';
  if (negated) set.remove_prefix(1);
  while (!set.empty()) {
    const Range range = take_range(set);
    if (character >= range.first && character <= range.last) return !negated;
  }
  return negated;
}

// Takes one element (not "*") from the pattern and what it stands for from the text. False when
// they do not fit.
bool take_element(std::string_view& text, std::string_view& pattern) {
  if (pattern.starts_with("[]")) {
    pattern.remove_prefix(2);
    return true;
  }
  if (text.empty()) return false;
  const std::string_view character = take_character(text);
  if (pattern[0] == '[') return in_set(character, take_set(pattern));
  const std::string_view element = take_character(pattern);
  const bool digit = character[0] >= '0' && character[0] <= '9';
  return element == "?" || (element == "#" && digit) || element == character;
}

bool fits(std::string_view text, std::string_view pattern) {
  // Where to go on when a try behind the last "*" fails: one character further in the text.
  std::string_view retry_text;
  std::string_view retry_pattern;
  bool star_seen = false;
  for (;;) {
    if (!pattern.empty() && pattern[0] == '*') {
      pattern.remove_prefix(1);
      star_seen = true;
      retry_text = text;
      retry_pattern = pattern;
      continue;
    }
    if (pattern.empty() && text.empty()) return true;
    if (!pattern.empty() && take_element(text, pattern)) continue;
    if (!star_seen || retry_text.empty()) return false;
    take_character(retry_text);
    text = retry_text;
    pattern = retry_pattern;
  }
}

}  // namespace

Likeness likeness(std::string_view text, std::string_view pattern) {
  if (!is_well_formed(pattern)) return Likeness::kIllFormed;
  return fits(text, pattern) ? Likeness::kLike : Likeness::kUnlike;
}

bool Like(std::string_view text, std::string_view pattern) {
  return likeness(text, pattern) == Likeness::kLike;
}

}  // namespace quillvane
