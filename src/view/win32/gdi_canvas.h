// A canvas that is a device context of Windows.
#pragma once

#include <windows.h>

#include <optional>

#include "controls/canvas.h"
#include "view/win32/gdi_objects.h"

namespace quillvane {

// The colours of the user's Windows, for a control that stands on these.
[[nodiscard]] CanvasColors system_canvas_colors(Color container_back, Color container_text);

// Its origin is that of the device context, which outlives it. It makes no object of Windows for a
// shape; for texts it makes a font and keeps it as long as the next has the same style.
class GdiCanvas final : public Canvas {
 public:
  GdiCanvas(HDC dc, const CanvasColors& colors);
  ~GdiCanvas() override;
  GdiCanvas(const GdiCanvas&) = delete;
  GdiCanvas& operator=(const GdiCanvas&) = delete;

  [[nodiscard]] const CanvasColors& colors() const override { return colors_; }
  void clip(const Region& shape) override;
  void fill(const Rect& area, Color color) override;
  void picture(const Rect& area, const Image& picture) override;
  void copy(Point to, const Image& picture) override;
  [[nodiscard]] Size measure(std::string_view caption, const FontStyle& font, int width) override;
  void text(const Rect& area, std::string_view caption, const FontStyle& font,
            Color color) override;

 private:
  void use(const FontStyle& font);

  HDC dc_;
  int saved_;
  CanvasColors colors_;
  std::optional<FontStyle> style_;
  FontOwner font_;
};

// The shape as Windows has it; the caller owns it.
[[nodiscard]] HRGN make_region(const Region& shape);

}  // namespace quillvane
