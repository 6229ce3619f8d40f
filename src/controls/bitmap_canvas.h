// A canvas in memory.
#pragma once

#include "controls/canvas.h"

namespace quillvane {

// The colours that the bitmap canvas has where no system is asked.
[[nodiscard]] const CanvasColors& bitmap_colors();

class BitmapCanvas final : public Canvas {
 public:
  // What is painted goes into `target`, whose pixels become opaque. Both outlive the canvas.
  // Without `raster` texts have no size and are left out.
  BitmapCanvas(Image& target, TextRaster* raster, const CanvasColors& colors = bitmap_colors());

  // The canvas's own origin, at which controls are painted, in the picture. A clip ends here.
  void set_origin(Point origin);

  [[nodiscard]] const CanvasColors& colors() const override { return colors_; }
  void clip(const Region& shape) override { shape_ = shape; }
  void fill(const Rect& area, Color color) override;
  void picture(const Rect& area, const Image& picture) override;
  void copy(Point to, const Image& picture) override;
  [[nodiscard]] Size measure(std::string_view caption, const FontStyle& font, int width) override;
  void text(const Rect& area, std::string_view caption, const FontStyle& font,
            Color color) override;

 private:
  // The pixel at a place of the canvas; null where nothing is painted.
  [[nodiscard]] std::uint32_t* pixel_at(int x, int y);
  void blend(int x, int y, Color color, unsigned share);
  void draw_line(Point at, std::string_view text, const FontStyle& font, Color color);

  Image& target_;
  TextRaster* raster_;
  CanvasColors colors_;
  Point origin_;
  Region shape_;
};

}  // namespace quillvane
