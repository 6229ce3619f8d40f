#include "tests/architecture/declared_names.h"

#include <regex>

namespace quillvane {

namespace {

// The comment line right before the place, without its slashes; empty when something else is there.
std::string comment_before(const std::string& content, std::size_t place) {
  if (place == 0) return {};
  const std::size_t begin = content.rfind('\n', place - 1);
  if (begin == std::string::npos || begin == 0) return {};
  const std::size_t line = content.rfind('\n', begin - 1) + 1;
  const std::string before = content.substr(line, begin - line);
  const std::size_t slashes = before.find_first_not_of(' ');
  constexpr std::string_view kSlashes = "// ";
  return slashes != std::string::npos && before.substr(slashes, kSlashes.size()) == kSlashes
             ? before.substr(slashes + kSlashes.size())
             : std::string();
}

}  // namespace

std::vector<DeclaredName> declared_names(const std::string& content) {
  static const std::regex declaration(
      R"re((\w+(?:<[\w:]+>)?) (\w+)\{\s*(?:window|\*this),\s*"([^"]+)"[^;]*\};(?: +// ([^\n]*))?)re");
  std::vector<DeclaredName> names;
  for (auto found = std::sregex_iterator(content.begin(), content.end(), declaration);
       found != std::sregex_iterator(); ++found) {
    const std::smatch& match = *found;
    std::string meaning = match[4].str();
    if (meaning.empty()) {
      meaning = comment_before(content, static_cast<std::size_t>(match.position(0)));
    }
    names.push_back({match[1].str(), match[2].str(), match[3].str(), std::move(meaning)});
  }
  return names;
}

}  // namespace quillvane
