#include "view/win32/look/arrange.h"

#include <algorithm>
#include <cstddef>

namespace quillvane {

namespace {

struct Span {
  int begin = 0;
  int end = 0;
};

// Lays tracks one behind the other from `begin` to `end`, a gap between them.
std::vector<Span> lay_tracks(std::span<const Track> tracks, Span room, int gap, int dpi) {
  int shares = 0;
  int fixed = gap * (static_cast<int>(tracks.size()) - 1);
  for (const Track& track : tracks) {
    shares += track.share;
    if (track.share == 0) fixed += scaled(track.length, dpi);
  }
  int left_over = std::max(room.end - room.begin - fixed, 0);
  std::vector<Span> spans;
  int at = room.begin;
  for (const Track& track : tracks) {
    int length = scaled(track.length, dpi);
    if (track.share != 0) {
      // The last one takes what rounding left.
      length = left_over * track.share / shares;
      left_over -= length;
      shares -= track.share;
    }
    spans.push_back({at, at + length});
    at += length + gap;
  }
  return spans;
}

// What the packed controls of each cell have left of it.
class Cells {
 public:
  Cells(const WindowLayout& layout, const PageGrid& grid, int width, int height, int dpi)
      : gap_(scaled(layout.gap, dpi)), width_(width), margin_(scaled(layout.margin, dpi)) {
    // The title bar reaches to the edges and has its gap below it like any row.
    rows_ = lay_tracks(grid.rows, {0, height - margin_}, gap_, dpi);
    columns_ = lay_tracks(grid.columns, {margin_, width - margin_}, gap_, dpi);
  }

  [[nodiscard]] Box cell(const ControlPlace& place) const {
    const Span row = rows_[static_cast<std::size_t>(place.row)];
    const Span first = columns_[static_cast<std::size_t>(place.column)];
    const Span last = columns_[static_cast<std::size_t>(place.column + place.columns - 1)];
    if (place.row == 0) return {0, row.begin, width_, row.end - row.begin};
    return {first.begin, row.begin, last.end - first.begin, row.end - row.begin};
  }
  [[nodiscard]] int gap(const ControlPlace& place) const { return place.row == 0 ? 0 : gap_; }

 private:
  int gap_;
  int width_;
  int margin_;
  std::vector<Span> rows_;
  std::vector<Span> columns_;
};

bool same_cell(const WindowLayout& layout, const ControlPlace& one, const ControlPlace& other) {
  return one.row == other.row && one.column == other.column && one.columns == other.columns &&
         !layout.take_turns(one, other);
}

// A packed control takes its part of what its cell has left.
Box take_from(Box& room, const ControlPlace& place, int length, int gap) {
  Box box = room;
  if (place.pack == Pack::kFromTop) {
    box.height = std::min(length, std::max(room.height, 0));
    room.top += box.height;
    room.height -= box.height;
    return box;
  }
  box.width = std::min(length, std::max(room.width, 0));
  if (place.pack == Pack::kFromRight) box.left = room.right() - box.width;
  const int used = std::min(box.width + gap, room.width);
  if (place.pack == Pack::kFromLeft) room.left += used;
  room.width -= used;
  return box;
}

}  // namespace

Box row_box(const WindowLayout& layout, int row, int width, int height, int dpi) {
  const PageGrid own = {{}, layout.rows, layout.columns, {}};
  const int columns = static_cast<int>(layout.columns.size());
  return Cells(layout, own, width, height, dpi)
      .cell(filling({}, ControlKind::kLabel, row, 0, columns));
}

Arrangement arrange(const WindowLayout& layout, int width, int height, int dpi,
                    std::span<const int> wanted) {
  return arrange(layout, {{}, layout.rows, layout.columns, layout.controls}, width, height, dpi,
                 wanted);
}

Arrangement arrange(const WindowLayout& layout, const PageGrid& page, int width, int height,
                    int dpi, std::span<const int> wanted) {
  const Cells cells(layout, page, width, height, dpi);
  const std::size_t count = page.controls.size();
  Arrangement result;
  result.controls.resize(count);
  result.tab_strips.resize(count);
  result.title = {0, 0, width, scaled(page.rows.front().length, dpi)};
  std::vector<Box> rest(count);  // of the cell of each control, kept at the cell's first control
  const auto rest_of = [&](std::size_t control) -> Box& {
    std::size_t first = 0;
    while (!same_cell(layout, page.controls[first], page.controls[control])) ++first;
    if (first == control) rest[first] = cells.cell(page.controls[first]);
    return rest[first];
  };
  // The order of the table is the order of packing; what fills a cell comes after.
  for (std::size_t i = 0; i < count; ++i) {
    const ControlPlace& place = page.controls[i];
    Box& room = rest_of(i);
    if (place.pack == Pack::kFill) continue;
    const bool grows = place.pack != Pack::kFromTop && !wanted.empty();
    const int length = std::max(scaled(place.width, dpi), grows ? wanted[i] : 0);
    result.controls[i] = take_from(room, place, length, cells.gap(place));
  }
  for (std::size_t i = 0; i < count; ++i) {
    const ControlPlace& place = page.controls[i];
    if (place.pack != Pack::kFill) continue;
    std::size_t first = 0;
    while (!same_cell(layout, page.controls[first], place)) ++first;
    Box box = rest[first];
    if (!place.tab.empty()) {
      const int strip = std::min(scaled(layout.tab_height, dpi), box.height);
      result.tab_strips[i] = {box.left, box.top, box.width, strip};
      box.top += strip;
      box.height -= strip;
    }
    result.controls[i] = box;
  }
  return result;
}

}  // namespace quillvane
