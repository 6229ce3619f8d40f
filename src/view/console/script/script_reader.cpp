#include "view/console/script/script_reader.h"

#include <string_view>

namespace quillvane {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

// Of a line that never ends no more is read than is needed to tell that it is too long.
bool ScriptReader::read_line(std::string& text) {
  text.clear();
  for (char c = 0; text.size() <= kLongestScriptLine && source_.get(c);) {
    if (c == '\n') return true;
    text.push_back(c);
  }
  return !text.empty() && !source_.bad();
}

std::optional<ScriptLine> ScriptReader::next() {
  std::string text;
  while (read_line(text)) {
    ++number_;
    if (text.size() > kLongestScriptLine) return ScriptLine{number_, std::move(text)};
    if (number_ == 1 && text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos || text[first] == '#') continue;
    return ScriptLine{number_, std::move(text)};
  }
  return std::nullopt;
}

std::optional<int> ScriptReader::unread_line() const {
  if (!source_.bad()) return std::nullopt;
  return number_ + 1;
}

}  // namespace quillvane
