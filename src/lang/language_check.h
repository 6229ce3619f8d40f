// What a translator should know of a language file: what the program would not find, would not
// show, or would show cut off.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lang/language_file.h"
#include "platform/code_page.h"

namespace quillvane {

struct LanguageFinding {
  int line = 0;         // from 1; 0: of the file as a whole
  std::string section;  // as the file writes it; empty outside
  std::string key;      // likewise
  std::string what;     // in a few words
};

// Every finding in the order of the lines, what is missing behind the section it is missing from.
// `page` is the language's code page, `page_number` its number.
[[nodiscard]] std::vector<LanguageFinding> check_language_file(const LanguageBytes& file,
                                                               const CodePage& page,
                                                               int page_number);

// The character set that the catalogue names for the language of this code; nothing when it names
// none. `program` is the key of the catalogue.
[[nodiscard]] std::optional<int> catalogue_character_set(const LanguageBytes& catalogue,
                                                         std::string_view program,
                                                         std::string_view code);

// "de" for "fernwick-de.lang"; empty for a file of another name.
[[nodiscard]] std::string language_code_of(std::string_view file_name);

}  // namespace quillvane
