// Commands of the main window that are no part of a scan: what the lists' pop-up shows of a file,
// help, the suite's eraser, the small windows, and the way into the tray and back.
#include <string>

#include "core/form7.h"
#include "dialogs/about_window.h"
#include "dialogs/custom_dialog.h"
#include "dialogs/ignore_dialog.h"
#include "support/shell_helpers.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr int kHelpTopic = 18;
constexpr int kAboutPage = 7;

}  // namespace

// The row of view5 whose number stands in Text8; 0 when there is none.
int Form7::row_in_hand() const {
  const double row = Val(Text8.text());
  return row >= 1 && row <= view5.count() ? static_cast<int>(row) : 0;
}

void Form7::locate_row() {
  const int row = row_in_hand();
  if (row == 0) return;
  const std::string path = view5.text(row);
  platform().shell.open({"open", path.substr(0, path.rfind('\\') + 1), {}, kShowNormal});
}

void Form7::show_row_properties() {
  const int row = row_in_hand();
  if (row != 0) ShowFileProperties(platform().shell, view5.text(row));
}

void Form7::start_eraser() {
  // The start simply fails when the eraser is missing.
  platform().shell.open({"open", program.data_file("tideerase.exe"), {}, kShowNormal});
}

void Form7::show_help() {
  platform().shell.show_help(program.data_file("tidehelp.chm") + ">sec", kHelpTopic);
}

void Form7::open_ignore_list() {
  if (program.find_window("Form1") != nullptr) return;  // it is open already
  Form1 dialog(program);
  dialog.load();
  program.show_modal(dialog);
  if (!may_remove()) read_ignore_list();  // the user may have mended what was in the way
}

void Form7::open_custom_list() {
  if (program.find_window("Form2") != nullptr) return;
  Form2 dialog(program);
  dialog.load();
  program.show_modal(dialog);
}

void Form7::open_about() {
  program.page_value = kAboutPage;
  if (program.find_window("frmabout") != nullptr) return;
  frmabout window(program);
  window.load();
  program.show_modal(window);
}

void Form7::leave_tray() {
  show();
  TrayArea1.set_icon_visible(false);
  set_state(WindowState::kNormal);
  show();
}

}  // namespace quillvane
