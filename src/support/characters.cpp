#include "support/characters.h"

#include <algorithm>

#include "platform/utf8.h"

namespace quillvane {

std::size_t character_count(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += decode_utf8(text, at).length) ++count;
  return count;
}

std::string_view first_characters(std::string_view text, std::size_t count) {
  std::size_t end = 0;
  for (; count > 0 && end < text.size(); --count) end += decode_utf8(text, end).length;
  return text.substr(0, end);
}

std::string_view last_characters(std::string_view text, std::size_t count) {
  const std::size_t all = character_count(text);
  return text.substr(first_characters(text, all - std::min(all, count)).size());
}

}  // namespace quillvane
