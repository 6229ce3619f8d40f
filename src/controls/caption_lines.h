// A caption as lines of text: its "&" taken out, its words broken at a width.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

struct CaptionLine {
  std::string text;
  std::optional<std::size_t> access_key;  // where the letter begins that is underlined, in bytes

  bool operator==(const CaptionLine&) const = default;
};

// The letter behind a single "&" in lower case, by which the keyboard reaches the control; empty
// without one. "&&" is the character itself.
[[nodiscard]] std::string access_key_of(std::string_view caption);

// `width_of` tells a text's pixels. A word that is wider stands alone in its line. Without any
// letter there is no line.
[[nodiscard]] std::vector<CaptionLine> caption_lines(
    std::string_view caption, int width, const std::function<int(std::string_view)>& width_of);

}  // namespace quillvane
