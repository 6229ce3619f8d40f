// Text by FreeType, in a font file of this machine.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/text_raster.h"

namespace quillvane {

// The files of one font.
struct FontFiles {
  std::string regular;
  std::string bold;
};

// Fonts that usual systems have, the best first.
[[nodiscard]] const std::vector<FontFiles>& usual_fonts();

// Opens the first of the fonts that is there when text is first asked for.
class FreeTypeRaster final : public TextRaster {
 public:
  explicit FreeTypeRaster(std::vector<FontFiles> fonts = usual_fonts());
  ~FreeTypeRaster() override;

  [[nodiscard]] std::optional<std::string> problem() override;
  [[nodiscard]] LineMetrics metrics(const FontStyle& font) override;
  [[nodiscard]] int width(std::string_view text, const FontStyle& font) override;
  [[nodiscard]] Coverage draw(std::string_view text, const FontStyle& font) override;

 private:
  struct Faces;

  Faces& faces();

  std::vector<FontFiles> fonts_;
  std::unique_ptr<Faces> faces_;
};

}  // namespace quillvane
