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
