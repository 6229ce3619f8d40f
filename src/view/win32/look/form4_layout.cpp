// One row of the table of file types.
#include "view/win32/look/dialog_layouts.h"
#include "view/win32/look/dialog_parts.h"

namespace quillvane {

namespace {

enum Row { kTitle, kDescription, kPattern, kCommands };

constexpr Track kRows[] = {{kDialogTitle, 0}, {24, 0}, {24, 0}, {kDialogCommands, 0}};

// Labels, and lines to be typed in.
constexpr Track kColumns[] = {{150, 0}, {200, 1}};

// In the order in which Tab goes through them; a label names the line behind it.
constexpr ControlPlace kControls[] = {
    dialog_place("Label1(0)", ControlKind::kLabel, kDescription, 0, 1),
    dialog_place("Text1", ControlKind::kEdit, kDescription, 1, 1),
    dialog_place("Label1(1)", ControlKind::kLabel, kPattern, 0, 1),
    dialog_place("Text2", ControlKind::kEdit, kPattern, 1, 1),
    dialog_place("Command2", ControlKind::kButton, kCommands, 0, 2, Pack::kFromRight, 96),
    dialog_place("Command1", ControlKind::kMainButton, kCommands, 0, 2, Pack::kFromRight, 96),
    dialog_close_cross(2),
};

constexpr std::string_view kUndrawn[] = {
    "Label222(1)",  // the title bar shows it
    "Text3",        // the row that is changed
};

constexpr WindowLayout layout() {
  WindowLayout layout = dialog_layout(480, 170);
  layout.window = "Form4";
  layout.default_button = "Command1";
  layout.rows = kRows;
  layout.columns = kColumns;
  layout.controls = kControls;
  layout.undrawn = kUndrawn;
  return layout;
}

constexpr WindowLayout kLayout = layout();

}  // namespace

const WindowLayout& form4_layout() { return kLayout; }

}  // namespace quillvane
