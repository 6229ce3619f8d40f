// Commands of the main window that are no part of a scan: what the lists' pop-up shows of a file,
// help, the suite's eraser, and the way back from the tray.
#include <string>

#include "core/junk_commands.h"
#include "support/shell_helpers.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr int kHelpTopic = 18;

}  // namespace

// The row of view5 whose number stands in Text8; 0 when there is none.
int JunkCommands::row_in_hand() const {
  const double row = Val(junk_.Text8.text());
  return row >= 1 && row <= junk_.view5.count() ? static_cast<int>(row) : 0;
}

void JunkCommands::locate_row() {
  const int row = row_in_hand();
  if (row == 0) return;
  const std::string path = junk_.view5.text(row);
  platform().shell.open({"open", path.substr(0, path.rfind('\\') + 1), {}, kShowNormal});
}

void JunkCommands::show_row_properties() {
  const int row = row_in_hand();
  if (row != 0) ShowFileProperties(platform().shell, junk_.view5.text(row));
}

void JunkCommands::start_eraser() {
  // The start simply fails when the eraser is missing.
  platform().shell.open({"open", session.data_file("tideerase.exe"), {}, kShowNormal});
}

void JunkCommands::show_help() {
  platform().shell.show_help(session.data_file("tidehelp.chm") + ">sec", kHelpTopic);
}

void JunkCommands::leave_tray() {
  window.show();
  TrayArea1.set_icon_visible(false);
  window.set_state(WindowState::kNormal);
  window.show();
}

}  // namespace quillvane
