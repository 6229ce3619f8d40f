// Places on a surface, in pixels from its left and top.
#pragma once

#include <algorithm>

namespace quillvane {

struct Point {
  int x = 0;
  int y = 0;

  bool operator==(const Point&) const = default;
};

struct Size {
  int width = 0;
  int height = 0;

  bool operator==(const Size&) const = default;
};

struct Rect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;

  [[nodiscard]] int right() const { return x + width; }    // the first column behind it
  [[nodiscard]] int bottom() const { return y + height; }  // the first row below it
  [[nodiscard]] bool empty() const { return width <= 0 || height <= 0; }

  [[nodiscard]] Rect inset(int by) const {
    return {x + by, y + by, width - 2 * by, height - 2 * by};
  }
  [[nodiscard]] Rect moved(int across, int down) const {
    return {x + across, y + down, width, height};
  }
  // What of it lies in the other.
  [[nodiscard]] Rect within(const Rect& other) const {
    const int left = std::max(x, other.x);
    const int top = std::max(y, other.y);
    return {left, top, std::min(right(), other.right()) - left,
            std::min(bottom(), other.bottom()) - top};
  }

  bool operator==(const Rect&) const = default;
};

// A box of this size in the middle of `area`.
[[nodiscard]] inline Rect centred(Size size, const Rect& area) {
  return {area.x + (area.width - size.width) / 2, area.y + (area.height - size.height) / 2,
          size.width, size.height};
}

}  // namespace quillvane
