// Language files and their catalogue: texts by section and key, read anew for every key.
//
// Their bytes are in the code page of the language (lang/character_set.h), whatever the system's
// own is; a file with a UTF-8 mark, or whose bytes above ASCII are valid UTF-8 throughout, is
// UTF-8. In none of these pages is a byte of "=", a quote or a line end part of another character,
// so that lines are taken apart before their code page is known.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "support/session.h"

namespace quillvane {

inline constexpr std::size_t kMostLanguageBytes = 1024 * 1024;  // a larger file is none

struct LanguageBytes {
  std::string bytes;  // without a UTF-8 mark
  bool is_utf8 = false;
};

// What bytes of this content are; nothing for more than kMostLanguageBytes and where there are NUL
// bytes.
[[nodiscard]] std::optional<LanguageBytes> language_bytes(std::string content);

// A file of the folder "lang" beside the program: its path, and its content. What cannot be read
// counts as not there.
[[nodiscard]] std::string language_path(const Session& session, std::string_view name);
[[nodiscard]] std::optional<LanguageBytes> read_language_bytes(const Session& session,
                                                               const std::string& path);

// One line taken apart as readers see it.
struct LanguageLine {
  std::string_view line;   // without the blanks around it
  std::string_view key;    // up to the first "=", without blanks; all of a line that has none
  std::string_view value;  // up to the second "="; with its quotes
  bool has_value = false;  // whether there is a "="
  bool is_cut = false;     // whether there is a second "=": what follows is lost
};
[[nodiscard]] LanguageLine language_line(std::string_view line);

// Whether a line begins the section of that name.
[[nodiscard]] bool begins_section(const LanguageLine& line, std::string_view section);

// The bytes of the value, its quotes dropped; empty when there is none. The section is not ended by
// the next one: a key that it lacks is found in a later section. Meant so.
[[nodiscard]] std::string language_value(std::string_view bytes, std::string_view section,
                                         std::string_view key);

// Text for bytes of a language file. `code_page` 0, and one that is not installed: the system's.
[[nodiscard]] std::string language_text(const SystemInfo& system, const LanguageBytes& file,
                                        const std::string& bytes, int code_page);

// The value of a key of that file, in the code page of the chosen language; empty when the file or
// the key is missing. The only reader of language files for captions.
[[nodiscard]] std::string readlangfile(const Session& session, const std::string& file,
                                       std::string_view section, std::string_view key);

}  // namespace quillvane
