// A surface that the program's own controls are painted on.
//
// A canvas has few primitives of its own, and the shapes are made of them here, so that they are
// the same pixels on every canvas; only text is each canvas's own.
#pragma once

#include <array>
#include <string_view>

#include "controls/region.h"
#include "controls/shapes.h"
#include "forms/control.h"
#include "platform/image.h"
#include "platform/text_raster.h"

namespace quillvane {

// The colours that a control finds where it stands.
struct CanvasColors {
  static constexpr int kSystemColors = 31;

  std::array<Color, kSystemColors> system{};  // by the numbers of Windows: 15 is a button's face
  Color container_back = 0;
  Color container_text = 0;

  // A colour as it is painted: one with the highest bit set is a number of the system's.
  [[nodiscard]] Color translated(Color color) const;
};

class Canvas {
 public:
  virtual ~Canvas() = default;

  [[nodiscard]] virtual const CanvasColors& colors() const = 0;

  // Nothing is painted outside of the shape of the control at the canvas's origin.
  virtual void clip(const Region& shape) = 0;
  virtual void fill(const Rect& area, Color color) = 0;
  // Stretches the picture over the area; its alpha lets through what is there.
  virtual void picture(const Rect& area, const Image& picture) = 0;
  // Puts the picture's pixels in place of what is there, whatever their alpha.
  virtual void copy(Point to, const Image& picture) = 0;
  // The caption's size when its words are broken into lines of at most `width` pixels. A single "&"
  // is not shown and underlines the letter behind it.
  [[nodiscard]] virtual Size measure(std::string_view caption, const FontStyle& font,
                                     int width) = 0;
  // The same caption in the middle of `area`, broken at the area's width.
  virtual void text(const Rect& area, std::string_view caption, const FontStyle& font,
                    Color color) = 0;

  // What follows is made of fills.
  void pixel(Point at, Color color) { fill({at.x, at.y, 1, 1}, color); }
  // From the first to the last pixel, both painted; along a row or a column.
  void line(Point first, Point last, Color color);
  // One pixel wide, inside the area.
  void frame(const Rect& area, Color color);
  // Every other pixel of a frame, from its first corner on.
  void dotted_frame(const Rect& area, Color color);
  // Inside the area; the pen lies inside the ellipse.
  void ellipse(const Rect& area, Color inside, Color pen, int pen_width);

 private:
  void fill_ellipse(const Rect& area, Color color);
};

}  // namespace quillvane
