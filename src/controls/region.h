// The shape of a control: for each row of its rectangle, the columns that belong to it.
#pragma once

#include <vector>

#include "controls/shapes.h"

namespace quillvane {

class Region {
 public:
  struct Row {
    int left = 0;
    int right = 0;  // the first column behind it; not above `left` in a row without pixels

    bool operator==(const Row&) const = default;
  };

  [[nodiscard]] static Region rectangle(Size size);
  // The pixels whose middle lies in the ellipse that touches all four sides.
  [[nodiscard]] static Region ellipse(Size size);

  // Takes the pixels of `area` out, and with them what of their rows lies between them and the
  // nearer side of the rectangle.
  void take_out(const Rect& area);

  [[nodiscard]] Size size() const { return {width_, static_cast<int>(rows_.size())}; }
  [[nodiscard]] bool contains(Point point) const;
  [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }

  bool operator==(const Region&) const = default;

 private:
  Region(Size size, Row row)
      : width_(size.width), rows_(static_cast<std::size_t>(std::max(0, size.height)), row) {}

  int width_ = 0;
  std::vector<Row> rows_;
};

}  // namespace quillvane
