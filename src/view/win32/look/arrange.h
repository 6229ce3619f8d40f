// Where the controls of a window stand, for a size of the window and a resolution of the screen.
#pragma once

#include <span>
#include <vector>

#include "view/win32/look/layout_table.h"

namespace quillvane {

inline constexpr int kPlainDpi = 96;  // dots per inch at which a unit of the table is a pixel

// Units of the table in pixels, rounded.
[[nodiscard]] constexpr int scaled(int length, int dpi) {
  return (length * dpi + kPlainDpi / 2) / kPlainDpi;
}

// Pixels, from the window's upper left corner.
struct Box {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  [[nodiscard]] constexpr int right() const { return left + width; }
  [[nodiscard]] constexpr int bottom() const { return top + height; }
};

struct Arrangement {
  std::vector<Box> controls;  // as in the table
  // Above each control that shares its cell by tabs: the strip of the tabs; empty for the others.
  std::vector<Box> tab_strips;
  Box title;  // the whole title bar
};

// `wanted` holds for each control the pixels its caption needs, which widen a packed control; 0 for
// none. Where the window is too small for all, the sharing tracks shrink to nothing before anything
// leaves the window.
[[nodiscard]] Arrangement arrange(const WindowLayout& layout, int width, int height, int dpi,
                                  std::span<const int> wanted);

// The same for one of the window's pages.
[[nodiscard]] Arrangement arrange(const WindowLayout& layout, const PageGrid& page, int width,
                                  int height, int dpi, std::span<const int> wanted);

// A row of the window's own grid, from its left margin to its right one.
[[nodiscard]] Box row_box(const WindowLayout& layout, int row, int width, int height, int dpi);

}  // namespace quillvane
