#include "controls/canvas.h"

#include <cstdlib>

namespace quillvane {

Color CanvasColors::translated(Color color) const {
  constexpr Color kOfSystem = 0x80000000U;
  if ((color & kOfSystem) == 0) return color & 0xFFFFFFU;
  const auto number = static_cast<std::size_t>(color & 0xFFU);
  return number < system.size() ? system[number] : 0;
}

void Canvas::line(Point first, Point last, Color color) {
  fill({std::min(first.x, last.x), std::min(first.y, last.y), std::abs(last.x - first.x) + 1,
        std::abs(last.y - first.y) + 1},
       color);
}

void Canvas::frame(const Rect& area, Color color) {
  if (area.empty()) return;
  fill({area.x, area.y, area.width, 1}, color);
  fill({area.x, area.bottom() - 1, area.width, 1}, color);
  fill({area.x, area.y, 1, area.height}, color);
  fill({area.right() - 1, area.y, 1, area.height}, color);
}

void Canvas::dotted_frame(const Rect& area, Color color) {
  if (area.empty()) return;
  for (int y = 0; y < area.height; ++y) {
    const bool whole = y == 0 || y == area.height - 1;
    for (int x = 0; x < area.width; x += whole ? 1 : std::max(1, area.width - 1)) {
      if ((x + y) % 2 == 0) pixel({area.x + x, area.y + y}, color);
    }
  }
}

void Canvas::fill_ellipse(const Rect& area, Color color) {
  if (area.empty()) return;
  const Region shape = Region::ellipse({area.width, area.height});
  int y = area.y;
  for (const Region::Row& row : shape.rows()) {
    fill({area.x + row.left, y++, row.right - row.left, 1}, color);
  }
}

void Canvas::ellipse(const Rect& area, Color inside, Color pen, int pen_width) {
  fill_ellipse(area, pen);
  fill_ellipse(area.inset(pen_width), inside);
}

}  // namespace quillvane
