// Text as pixels, in a font of this machine.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

struct FontStyle {
  std::string name = {};  // empty: the usual one
  int pixels = 12;        // height of the letters' square
  bool bold = false;
  bool italic = false;
  bool underline = false;

  bool operator==(const FontStyle&) const = default;
};

// Of a line of text, in pixels from its top.
struct LineMetrics {
  int height = 0;
  int baseline = 0;
};

// How much of each pixel is covered, row by row, from 0 to 255.
struct Coverage {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> values;
};

// All texts are one line of UTF-8.
class TextRaster {
 public:
  virtual ~TextRaster() = default;

  // Why no text can be drawn here, as "WHAT: WHY"; nothing when it can. Where it cannot, texts are
  // empty.
  [[nodiscard]] virtual std::optional<std::string> problem() = 0;
  [[nodiscard]] virtual LineMetrics metrics(const FontStyle& font) = 0;
  // In pixels, from the beginning of the first letter to that of one that would follow.
  [[nodiscard]] virtual int width(std::string_view text, const FontStyle& font) = 0;
  // As wide as `width` says and as high as the line. The line below underlined text is not in it.
  [[nodiscard]] virtual Coverage draw(std::string_view text, const FontStyle& font) = 0;
};

}  // namespace quillvane
