#include "controls/region.h"

#include <algorithm>
#include <cstdint>

namespace quillvane {

Region Region::rectangle(Size size) { return {size, Row{0, size.width}}; }

Region Region::ellipse(Size size) {
  Region region(size, Row{0, 0});
  const std::int64_t w = size.width;
  const std::int64_t h = size.height;
  // Twice the distance of a pixel's middle from that of the rectangle is a whole number.
  const auto is_in = [&](std::int64_t x, std::int64_t y) {
    const std::int64_t across = (2 * x + 1 - w) * h;
    const std::int64_t down = (2 * y + 1 - h) * w;
    return across * across + down * down <= w * w * h * h;
  };
  for (int y = 0; y < size.height; ++y) {
    // Rows grow towards the middle, where the search for the next begins.
    const bool upper = 2 * y < size.height;
    int left = (size.width + 1) / 2;
    if (upper && y > 0) left = region.rows_[static_cast<std::size_t>(y) - 1].left;
    if (!upper) {
      region.rows_[static_cast<std::size_t>(y)] =
          region.rows_[static_cast<std::size_t>(size.height - 1 - y)];
      continue;
    }
    while (left > 0 && is_in(left - 1, y)) --left;
    region.rows_[static_cast<std::size_t>(y)] = {left, size.width - left};
  }
  return region;
}

void Region::take_out(const Rect& area) {
  const Rect cut = area.within({0, 0, width_, static_cast<int>(rows_.size())});
  if (cut.empty()) return;
  const bool from_left = cut.x < width_ - cut.right();
  for (int y = cut.y; y < cut.bottom(); ++y) {
    Row& row = rows_[static_cast<std::size_t>(y)];
    if (from_left) {
      row.left = std::max(row.left, cut.right());
    } else {
      row.right = std::min(row.right, cut.x);
    }
  }
}

bool Region::contains(Point point) const {
  if (point.y < 0 || point.y >= static_cast<int>(rows_.size())) return false;
  const Row& row = rows_[static_cast<std::size_t>(point.y)];
  return point.x >= row.left && point.x < row.right;
}

}  // namespace quillvane
