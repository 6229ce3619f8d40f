// The character sets by which fonts tell their script, and the code pages that belong to them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillvane {

inline constexpr int kWesternCharacterSet = 0;

// The character set of fonts for texts of a code page, as the main window derives it from the
// system's; nothing for a page that has none.
[[nodiscard]] std::optional<int> character_set_of_page(int code_page);

// Whether texts of this character set are those of a system with this code page, so that Windows
// itself can draw them in a menu. Some pairs name code pages that no system uses, and character set
// 238 goes with 1257: meant so.
[[nodiscard]] bool is_set_of_page(int character_set, int code_page);

// The code page that texts for fonts of this character set are written in; 0: that of the system,
// where the set is no script's.
[[nodiscard]] int text_page_of_set(int character_set);

// The character set that a catalogue names: a decimal number that a font can hold, blanks around
// it; nothing for anything else.
[[nodiscard]] std::optional<int> character_set_from(std::string_view text);

}  // namespace quillvane
