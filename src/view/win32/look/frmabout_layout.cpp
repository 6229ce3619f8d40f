// About the program.
#include "view/win32/look/dialog_layouts.h"
#include "view/win32/look/dialog_parts.h"

namespace quillvane {

namespace {

enum Row { kTitle, kName, kVersion, kWeb, kMail, kTranslation };

constexpr Track kRows[] = {{kDialogTitle, 0}, {28, 0}, {22, 0}, {24, 0}, {24, 0}, {24, 0}};
constexpr Track kColumns[] = {{300, 1}};

constexpr ControlPlace link(std::string_view name, Row row) {
  return dialog_place(name, ControlKind::kLink, row, 0, 1, Pack::kFromLeft, 40);
}

// In the order in which Tab goes through them.
constexpr ControlPlace kControls[] = {
    dialog_place("Label2(0)", ControlKind::kHeading, kName, 0, 1),
    dialog_place("Label2(1)", ControlKind::kLabel, kVersion, 0, 1),
    link("Label2(2)", kWeb),
    link("Label2(3)", kMail),
    link("Label6", kTranslation),
    dialog_close_cross(1),
};

constexpr std::string_view kUndrawn[] = {"Label222(1)"};  // the title bar shows it

constexpr WindowLayout layout() {
  WindowLayout layout = dialog_layout(400, 214);
  layout.window = "frmabout";
  layout.default_button = "chameleonButton3";
  layout.rows = kRows;
  layout.columns = kColumns;
  layout.controls = kControls;
  layout.undrawn = kUndrawn;
  return layout;
}

constexpr WindowLayout kLayout = layout();

}  // namespace

const WindowLayout& frmabout_layout() { return kLayout; }

}  // namespace quillvane
