#include "view/console/script/script_words.h"

#include "view/console/script/script_error.h"

namespace quillvane {

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

// Reads the quoted word whose opening quote stands at `at`; leaves `at` behind the closing one.
std::string quoted_word(std::string_view line, std::size_t& at) {
  std::string word;
  for (++at; at < line.size(); ++at) {
    if (line[at] == '\\' && at + 1 < line.size() && line[at + 1] == '"') {
      word += '"';
      ++at;
    } else if (line[at] == '"') {
      ++at;
      if (at < line.size() && !is_blank(line[at])) {
        throw ScriptError("a blank is missing behind a closing quote");
      }
      return word;
    } else {
      word += line[at];
    }
  }
  throw ScriptError("a quoted word has no closing quote");
}

std::string plain_word(std::string_view line, std::size_t& at) {
  const std::size_t begin = at;
  while (at < line.size() && !is_blank(line[at])) ++at;
  return std::string(line.substr(begin, at - begin));
}

}  // namespace

ScriptWords split_words(std::string_view line) {
  ScriptWords words;
  std::size_t at = 0;
  while (true) {
    while (at < line.size() && is_blank(line[at])) ++at;
    if (at == line.size()) return words;
    if (words.size() == kMostScriptWords) throw ScriptError("has too many words");
    words.push_back(line[at] == '"' ? quoted_word(line, at) : plain_word(line, at));
  }
}

}  // namespace quillvane
