// What the pages of the drive search make of a row of the type table: its icon, and the words on
// files of its kind.
#pragma once

#include <string_view>

namespace quillvane {

// Key in the image list of the type pages: "tmp", "gid", "bak", "0by" for a row without a pattern,
// "oth". By the last three characters of the pattern, in any case.
[[nodiscard]] std::string_view icon_of_pattern(std::string_view pattern);

struct TypeWords {
  std::string_view title;
  std::string_view text;
};
// By the description, in any case; empty for a kind without words.
[[nodiscard]] TypeWords words_on_type(std::string_view description);

}  // namespace quillvane
