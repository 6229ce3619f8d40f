// The user's own categories.
#include "view/win32/look/dialog_layouts.h"
#include "view/win32/look/dialog_parts.h"

namespace quillvane {

namespace {

enum Row { kTitle, kText, kList, kCommands };

constexpr Track kRows[] = {{kDialogTitle, 0}, {24, 0}, {120, 1}, {kDialogCommands, 0}};
constexpr Track kColumns[] = {{300, 1}};

// In the order in which Tab goes through them.
constexpr ControlPlace kControls[] = {
    dialog_place("Label1", ControlKind::kLabel, kText, 0, 1),
    dialog_list("view1", kList, "Categories of your own"),
    dialog_place("Command3", ControlKind::kMainButton, kCommands, 0, 1, Pack::kFromLeft, 96),
    dialog_place("Command4", ControlKind::kButton, kCommands, 0, 1, Pack::kFromLeft, 96),
    dialog_place("Command2", ControlKind::kButton, kCommands, 0, 1, Pack::kFromLeft, 96),
    dialog_place("Command1", ControlKind::kButton, kCommands, 0, 1, Pack::kFromRight, 96),
    dialog_close_cross(1),
};

constexpr std::string_view kUndrawn[] = {
    "Label222(1)",  // the title bar shows it
    "Text1",        // mailbox
};

constexpr WindowLayout layout() {
  WindowLayout layout = dialog_layout(560, 400);
  layout.window = "Form2";
  layout.default_button = "Command3";
  layout.rows = kRows;
  layout.columns = kColumns;
  layout.controls = kControls;
  layout.undrawn = kUndrawn;
  layout.least_width = 480;
  layout.least_height = 280;
  return layout;
}

constexpr WindowLayout kLayout = layout();

}  // namespace

const WindowLayout& form2_layout() { return kLayout; }

}  // namespace quillvane
