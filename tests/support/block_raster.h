// Text without a font: each letter is a block, so that a test can reckon with it.
#pragma once

#include "platform/text_raster.h"

namespace quillvane {

// Each byte of a text is 6 pixels wide, of which the first 5 are covered; a line is 10 high, its
// covered rows are 2 to 7. A blank covers nothing.
class BlockRaster final : public TextRaster {
 public:
  static constexpr int kLetter = 6;
  static constexpr int kLine = 10;

  [[nodiscard]] std::optional<std::string> problem() override { return std::nullopt; }
  [[nodiscard]] LineMetrics metrics(const FontStyle& /*font*/) override { return {kLine, 8}; }
  [[nodiscard]] int width(std::string_view text, const FontStyle& /*font*/) override {
    return kLetter * static_cast<int>(text.size());
  }
  [[nodiscard]] Coverage draw(std::string_view text, const FontStyle& font) override {
    Coverage coverage{width(text, font), kLine, {}};
    for (int y = 0; y < kLine; ++y) {
      for (int x = 0; x < coverage.width; ++x) {
        const bool is_letter = text[static_cast<std::size_t>(x / kLetter)] != ' ';
        const bool covered = is_letter && x % kLetter < 5 && y >= 2 && y < 8;
        coverage.values.push_back(covered ? 255 : 0);
      }
    }
    return coverage;
  }
};

}  // namespace quillvane
