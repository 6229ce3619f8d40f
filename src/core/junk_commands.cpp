// Which command runs what.
#include "core/junk_commands.h"

#include <vector>

#include "cleaning/backup.h"

namespace quillvane {

namespace {

// Indexes 4, 8, 11 and 15 are separators; the others carry the pictures of the tool bar's list.
// Buttons 1 to 4 belong to the drive search and are hidden at the start.
std::vector<ToolbarButton> design_toolbar() {
  constexpr bool kOff = false;
  const auto separator = [](bool visible = true) { return ToolbarButton{0, true, true, visible}; };
  const auto button = [](int image, bool enabled = true, bool visible = true) {
    return ToolbarButton{image, false, enabled, visible};
  };
  return {
      button(1, true, false),
      button(2, true, false),
      button(3, true, false),
      separator(false),
      button(4),
      button(10, kOff),
      button(5, kOff),
      separator(),
      button(6, kOff),
      button(7, kOff),
      separator(),
      button(11),
      button(12),
      button(8, kOff),
      separator(),
      button(13),
  };
}

}  // namespace

JunkCommands::JunkCommands(Window& owner, Session& shared, JunkPage& junk)
    : Page(owner, shared), junk_(junk) {
  Toolbar1.set_buttons(design_toolbar());
  enter_state(ButtonState::kFresh);
  connect_buttons();
  connect_menus();
}

void JunkCommands::connect_buttons() {
  cmd_start.on_click = [this] { start_button(); };
  cmd_cancel.on_click = [this] { cancel_button(); };
  cmd_clean.on_click = [this] { clean_button(); };
  cmd_custom.on_click = [this] { on_custom_list(); };
  cmd_ignore.on_click = [this] { on_ignore_list(); };
  cmd_report.on_click = [this] { write_report(); };
  cmd_all.on_click = [this] { junk_.show_everything(true); };
  cmd_non.on_click = [this] { junk_.show_everything(false); };
  orvbutton2.on_click = [this] { clean_all(); };
  Command14.on_click = [this] { back_up(junk_); };
  chameleonButton2.on_click = [this] { on_shortcuts(); };
  chameleonButton9.on_click = [this] { window.close(); };
  chameleonButton12.on_click = [this] { window.minimise(); };
  chameleonButton13.on_click = [this] { turn_over_languages(); };
  chameleonButton18.on_click = [this] { on_about(); };
  Image44_0.on_click = [this] { show_help(); };
  Toolbar1.on_button_click = [this](int number) { toolbar_button(number); };
  TrayArea1.on_double_click = [this] { leave_tray(); };
}

void JunkCommands::connect_menus() {
  scf.on_click = [this] { rescan_node(); };
  stc.on_click = [this] { clean_node(); };
  junk_.Tv1.on_right_click = [this] { return &sc; };
  b1.on_click = [this] { orvbutton2.click(); };
  b2.on_click = [this] {
    junk_.view5.check_all(true);
    orvbutton2.click();
  };
  b4.on_click = [this] { locate_row(); };
  b5.on_click = [this] { show_row_properties(); };
  b7.on_click = [this] { junk_.view5.check_all(true); };
  b8.on_click = [this] { junk_.view5.check_all(false); };
  for (ListView* list : {&junk_.view1, &junk_.view5}) {
    list->on_double_click = [this, list] {
      if (list->count() >= 1) show_row_properties();
    };
    list->on_right_click = [this, list] { return list->count() >= 1 ? &b : nullptr; };
  }
}

}  // namespace quillvane
