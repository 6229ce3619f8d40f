// The reader of automation scripts: lines, words, the command and the values of setreg. Whatever
// the text, it is read to its end or told what is wrong; and words that were read can be written
// in quotes and read again.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <sstream>
#include <string>

#include "view/console/script/registry_words.h"
#include "view/console/script/script_command.h"
#include "view/console/script/script_error.h"
#include "view/console/script/script_reader.h"

namespace {

using namespace quillvane;

// The words in quotes; a word that ends in a backslash cannot be written so.
std::string in_quotes(const ScriptWords& words) {
  std::string line;
  for (const std::string& word : words) {
    if (word.ends_with('\\')) return "";
    line += " \"";
    for (const char c : word) {
      if (c == '"') line += '\\';
      line += c;
    }
    line += '"';
  }
  return line;
}

void read_line(const std::string& text) {
  const ScriptWords words = split_words(text);
  if (words.empty()) std::abort();  // blank lines are the reader's
  const std::string again = in_quotes(words);
  if (!again.empty() && split_words(again) != words) std::abort();

  (void)find_command(words);
  if (words.size() < 5 || words[0] != "setreg") return;
  (void)hive_named(words[1]);
  const RegistryValue value = registry_value_of(words[4], std::span(words).subspan(5));
  if (json_text(registry_json(value)).empty()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::istringstream source(std::string(reinterpret_cast<const char*>(data), size));
  ScriptReader reader(source);
  while (const auto line = reader.next()) {
    try {
      read_line(line->text);
    } catch (const ScriptError&) {
      // Told, as it should be.
    }
  }
  return 0;
}
