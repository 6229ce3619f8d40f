// Text by Windows.
#pragma once

#include "platform/text_raster.h"

namespace quillvane {

class Win32TextRaster final : public TextRaster {
 public:
  // Windows always has a font.
  [[nodiscard]] std::optional<std::string> problem() override { return std::nullopt; }
  [[nodiscard]] LineMetrics metrics(const FontStyle& font) override;
  [[nodiscard]] int width(std::string_view text, const FontStyle& font) override;
  [[nodiscard]] Coverage draw(std::string_view text, const FontStyle& font) override;
};

}  // namespace quillvane
