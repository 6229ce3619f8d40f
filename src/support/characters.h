// Texts counted by characters, not by bytes. A byte that is no UTF-8 is a character of its own.
#pragma once

#include <cstddef>
#include <string_view>

namespace quillvane {

[[nodiscard]] std::size_t character_count(std::string_view text);

// At most that many characters from the beginning or the end of the text.
[[nodiscard]] std::string_view first_characters(std::string_view text, std::size_t count);
[[nodiscard]] std::string_view last_characters(std::string_view text, std::size_t count);

}  // namespace quillvane
