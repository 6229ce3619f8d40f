#include "view/console/script/script_reader.h"

#include <string_view>

namespace quillvane {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

std::optional<ScriptLine> ScriptReader::next() {
  std::string text;
  while (std::getline(source_, text)) {
    ++number_;
    if (number_ == 1 && text.starts_with(kByteOrderMark)) text.erase(0, kByteOrderMark.size());
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos || text[first] == '#') continue;
    return ScriptLine{number_, std::move(text)};
  }
  return std::nullopt;
}

}  // namespace quillvane
