#include "support/text.h"

#include <array>
#include <charconv>

namespace quillvane {

namespace {

bool is_continuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// Length of the character that `text` begins with. Requires: text is not empty.
std::size_t character_length(std::string_view text) {
  std::size_t length = 1;
  while (length < text.size() && is_continuation(text[length])) ++length;
  return length;
}

// Whether the character is in the set between "[" and "]", without a leading "!".
bool in_set(std::string_view character, std::string_view set) {
  while (!set.empty()) {
    const std::string_view first = set.substr(0, character_length(set));
    set.remove_prefix(first.size());
    if (set.size() >= 2 && set[0] == '-') {
      set.remove_prefix(1);
      const std::string_view last = set.substr(0, character_length(set));
      set.remove_prefix(last.size());
      if (character >= first && character <= last) return true;
    } else if (character == first) {
      return true;
    }
  }
  return false;
}

// Takes one element (not "*") from the pattern and one character from the text.
// False when they do not fit.
bool take_element(std::string_view& text, std::string_view& pattern) {
  if (text.empty()) return false;
  const std::string_view character = text.substr(0, character_length(text));
  if (pattern[0] == '[') {
    const std::size_t end = pattern.find(']', 1);
    if (end != std::string_view::npos) {
      std::string_view set = pattern.substr(1, end - 1);
      const bool negated = !set.empty() && set[0] == '!';
      if (negated) set.remove_prefix(1);
      pattern.remove_prefix(end + 1);
      text.remove_prefix(character.size());
      return in_set(character, set) != negated;
    }
  }
  const std::string_view element = pattern.substr(0, character_length(pattern));
  const bool digit = character[0] >= '0' && character[0] <= '9';
  const bool fits = element == "?" || (element == "#" && digit) || element == character;
  text.remove_prefix(character.size());
  pattern.remove_prefix(element.size());
  return fits;
}

}  // namespace

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + separator.size());
  }
}

std::string part(const std::vector<std::string>& parts, std::size_t index) {
  return index < parts.size() ? parts[index] : std::string();
}

bool Like(std::string_view text, std::string_view pattern) {
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
    retry_text.remove_prefix(character_length(retry_text));
    text = retry_text;
    pattern = retry_pattern;
  }
}

std::string replace_all(std::string_view text, std::string_view from, std::string_view to) {
  std::string out;
  for (;;) {
    const std::size_t at = from.empty() ? std::string_view::npos : text.find(from);
    out.append(text.substr(0, at));
    if (at == std::string_view::npos) return out;
    out.append(to);
    text.remove_prefix(at + from.size());
  }
}

std::vector<std::string> text_lines(std::string_view content) {
  std::vector<std::string> lines;
  while (!content.empty()) {
    const std::size_t end = content.find_first_of("\r\n");
    lines.emplace_back(content.substr(0, end));
    if (end == std::string_view::npos) break;
    const bool is_pair = content.substr(end).starts_with("\r\n");
    content.remove_prefix(end + (is_pair ? 2 : 1));
  }
  return lines;
}

std::string number_text(double number) {
  std::array<char, 400> buffer{};
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

}  // namespace quillvane
