// One of the user's own categories.
#include "view/win32/look/dialog_layouts.h"
#include "view/win32/look/dialog_parts.h"

namespace quillvane {

namespace {

enum Row {
  kTitle,
  kText,
  kName,
  kLocation,
  kInclude,
  kIncludeExample,
  kExclude,
  kExcludeExample,
  kSubfolders,
  kCommands,
};

constexpr Track kRows[] = {
    {kDialogTitle, 0}, {24, 0}, {24, 0}, {24, 0}, {24, 0},
    {18, 0},           {24, 0}, {18, 0}, {24, 0}, {kDialogCommands, 0},
};

// Labels, lines to be typed in, and the button beside the folder.
constexpr Track kColumns[] = {{110, 0}, {200, 1}, {96, 0}};

constexpr ControlPlace label(std::string_view name, Row row) {
  return dialog_place(name, ControlKind::kLabel, row, 0, 1);
}

constexpr ControlPlace line(std::string_view name, Row row, int columns) {
  return dialog_place(name, ControlKind::kEdit, row, 1, columns);
}

// In the order in which Tab goes through them; a label names the line behind it.
constexpr ControlPlace kControls[] = {
    dialog_place("Label1(4)", ControlKind::kHeading, kText, 0, 3),
    label("Label1(0)", kName),
    line("Text1", kName, 2),
    label("Label1(1)", kLocation),
    line("Text2", kLocation, 1),
    dialog_place("Command3", ControlKind::kButton, kLocation, 2, 1, Pack::kFromRight, 96),
    label("Label1(2)", kInclude),
    line("Text3", kInclude, 2),
    dialog_place("Label2(0)", ControlKind::kLabel, kIncludeExample, 1, 2),
    label("Label1(3)", kExclude),
    line("Text4", kExclude, 2),
    dialog_place("Label2(1)", ControlKind::kLabel, kExcludeExample, 1, 2),
    dialog_place("Check1", ControlKind::kCheckBox, kSubfolders, 1, 2),
    dialog_place("Command1", ControlKind::kButton, kCommands, 0, 3, Pack::kFromRight, 96),
    dialog_place("Command2", ControlKind::kMainButton, kCommands, 0, 3, Pack::kFromRight, 96),
    dialog_close_cross(3),
};

constexpr std::string_view kUndrawn[] = {
    "Label222(1)",  // the title bar shows it
    "Text5",        // the row that is changed
};

constexpr WindowLayout layout() {
  WindowLayout layout = dialog_layout(560, 332);
  layout.window = "Form5";
  layout.default_button = "Command2";
  layout.rows = kRows;
  layout.columns = kColumns;
  layout.controls = kControls;
  layout.undrawn = kUndrawn;
  return layout;
}

constexpr WindowLayout kLayout = layout();

}  // namespace

const WindowLayout& form5_layout() { return kLayout; }

}  // namespace quillvane
