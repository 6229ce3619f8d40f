// Which command runs what.
#include "shortcuts/shortcut_commands.h"

#include <initializer_list>
#include <string>
#include <vector>

#include "support/program_name.h"
#include "support/shell_helpers.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr int kHelpTopic = 19;

// Indexes 2, 6 and 10 are separators; the others carry the pictures of the tool bars' list.
std::vector<ToolbarButton> design_toolbar() {
  std::vector<ToolbarButton> buttons;
  for (const int image : {14, 0, 4, 16, 5, 0, 6, 7, 15, 0, 8}) {
    buttons.push_back({.image = image, .separator = image == 0});
  }
  return buttons;
}

}  // namespace

ShortcutCommands::ShortcutCommands(Window& owner, Session& shared, ShortcutScan& scan)
    : Page(owner, shared), scan_(scan) {
  Toolbar1.set_buttons(design_toolbar());
  connect_buttons();
  connect_menu();
}

void ShortcutCommands::connect_buttons() {
  cmd_where.on_click = [this] { scan_.chameleonButton2.raise_click(); };
  cmd_start.on_click = [this] { start_command(); };
  cmd_delete.on_click = [this] { scan_.chameleonButton1.raise_click(); };
  cmd_cancel.on_click = [this] { cancel_command(); };
  cmd_all.on_click = [this] { scan_.chameleonButton5.raise_click(); };
  cmd_non.on_click = [this] { scan_.chameleonButton4.raise_click(); };
  cmd_fix.on_click = [this] { fix_command(); };
  cmd_report.on_click = [this] { write_report(); };
  Toolbar1.on_button_click = [this](int number) { toolbar_button(number); };
  chameleonButton9.on_click = [this] { window.close(); };
  chameleonButton12.on_click = [this] { window.minimise(); };
  chameleonButton13.on_click = [this] {
    if (turn_over_languages) turn_over_languages();
  };
  chameleonButton18.on_click = [this] { on_about(); };
  Image44_0.on_click = [this] { show_help(); };
  scan_.chameleonButton7.on_click = [this] { show_help(); };
  Label2_0.on_click = [this] { open_help_file(); };
  TrayArea1.on_double_click = [this] { leave_tray(); };
  TrayArea1.on_mouse_up = [this](int button) {
    if (button == 1) leave_tray();
  };
  scan_.view1.on_item_click = [this](int row) { row_clicked(row); };
  scan_.view1.on_double_click = [this] { fix_row(); };
}

void ShortcutCommands::connect_menu() {
  scan_.view1.on_right_click = [this] { return scan_.view1.count() >= 1 ? &a : nullptr; };
  sa.on_click = [this] { scan_.view1.check_all(true); };
  sn.on_click = [this] { scan_.view1.check_all(false); };
  ic.on_click = [this] {
    ListView& rows = scan_.view1;
    for (int row = 1; row <= rows.count(); ++row) rows.set_checked(row, !rows.checked(row));
  };
  of.on_click = [this] { open_link_folder(); };
  p.on_click = [this] {
    const int row = scan_.row_in_hand();
    if (row != 0) ShowFileProperties(platform().shell, scan_.link_path(row));
  };
}

void ShortcutCommands::toolbar_button(int number) {
  switch (number) {
    case 1:
      return scan_.chameleonButton2.raise_click();
    case 3:
      return start_command();
    case 4:
      return scan_.chameleonButton1.raise_click();
    case 5:
      return cancel_command();
    case 7:
      return scan_.chameleonButton5.raise_click();
    case 8:
      return scan_.chameleonButton4.raise_click();
    case 9:
      return fix_command();
    case 11:
      return write_report();
    default:
      return;
  }
}

// Behind a scan everything can be done but the fix, which needs a row that was clicked; also with
// an empty list.
void ShortcutCommands::start_command() {
  const std::initializer_list<Button*> others = {&cmd_start, &cmd_delete, &cmd_all,
                                                 &cmd_non,   &cmd_report, &cmd_where};
  for (Button* button : others) button->set_enabled(false);
  cmd_fix.set_enabled(false);
  cmd_cancel.set_enabled(true);
  scan_.somechecked = false;
  scan_.orvbutton1.raise_click();
  cmd_cancel.set_enabled(false);
  for (Button* button : others) button->set_enabled(true);
}

void ShortcutCommands::cancel_command() {
  scan_.chameleonButton3.raise_click();
  if (scan_.view1.count() > 0) {
    for (Button* button : {&cmd_delete, &cmd_all, &cmd_non, &cmd_report}) {
      button->set_enabled(true);
    }
  }
  for (Button* button : {&cmd_where, &cmd_start}) button->set_enabled(true);
  cmd_cancel.set_enabled(false);
}

void ShortcutCommands::fix_command() {
  if (Val(scan_.Text2.text()) != 0) return fix_row();
  platform().dialogs.message_box("Please select an item from the list below",
                                 std::string(kProgramName), kBoxIconInformation);
}

void ShortcutCommands::row_clicked(int row) {
  scan_.Text2.set_text(std::to_string(row));
  cmd_fix.set_enabled(true);
  scan_.Label8_1.set_caption(scan_.link_path(row) + " => " + scan_.target(row));
}

void ShortcutCommands::show_help() {
  platform().shell.show_help(session.data_file("tidehelp.chm") + ">sec", kHelpTopic);
}

void ShortcutCommands::open_help_file() {
  window.set_topmost(false);
  OpenFolder(platform().shell, session.data_file("tidehelp.chm"));
}

void ShortcutCommands::open_link_folder() {
  const int row = scan_.row_in_hand();
  if (row == 0) return;
  const std::string link = scan_.link_path(row);
  OpenFolder(platform().shell, link.substr(0, link.rfind('\\') + 1));
}

void ShortcutCommands::leave_tray() {
  window.show();
  TrayArea1.set_icon_visible(false);
  window.set_state(WindowState::kNormal);
  window.show();
}

}  // namespace quillvane
