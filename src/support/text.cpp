#include "support/text.h"

#include <array>
#include <charconv>

namespace quillvane {

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
