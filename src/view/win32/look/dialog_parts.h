// Rows of the tables that the small windows have in common.
#pragma once

#include "view/win32/look/layout_table.h"

namespace quillvane {

inline constexpr int kDialogTitle = 36;
inline constexpr int kDialogCommands = 32;
inline constexpr int kDialogMargin = 12;
inline constexpr int kDialogGap = 8;

// Escape leaves by the close cross.
inline constexpr KeyClick kDialogKeys[] = {{0x1B, "chameleonButton3"}};

// A control that fills its cell, or one with a caption that is packed in it.
constexpr ControlPlace dialog_place(std::string_view name, ControlKind kind, int row, int column,
                                    int columns, Pack pack = Pack::kFill, int width = 0) {
  return {name, kind, row, column, columns, pack, width, {}, {}, {}, {}};
}

constexpr ControlPlace dialog_list(std::string_view name, int row, std::string_view says) {
  return {name, ControlKind::kPlainList, row, 0, 1, Pack::kFill, 0, says, {}, {}, {}};
}

// What the small windows have in common: the title's label, the keys, the distances. What is a
// window's own (its name, table and sizes) is left for its own file to set.
constexpr WindowLayout dialog_layout(int width, int height) {
  return {.window = {},
          .title = "Label222(1)",
          .default_button = {},
          .rows = {},
          .columns = {},
          .controls = {},
          .hints = {},
          .keys = kDialogKeys,
          .reading_clicks = {},
          .undrawn = {},
          .margin = kDialogMargin,
          .gap = kDialogGap,
          .tab_height = 0,
          .width = width,
          .height = height,
          .least_width = width,
          .least_height = height};
}

constexpr ControlPlace dialog_close_cross(int columns) {
  return {"chameleonButton3",
          ControlKind::kTitleButton,
          0,
          0,
          columns,
          Pack::kFromRight,
          42,
          "Close",
          {},
          {},
          "title-close"};
}

}  // namespace quillvane
