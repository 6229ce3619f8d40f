#include "dialogs/custom_dialog.h"

#include <string>
#include <vector>

#include "dialogs/custom_entry_dialog.h"
#include "lang/change_language.h"
#include "support/list_files.h"
#include "support/suite_color.h"
#include "support/val.h"

namespace quillvane {

Form2::Form2(Session& session, ModalWindows& windows, TextBox& mail_box)
    : ModalWindow("Form2"), session_(session), windows_(windows), mail_box_(mail_box) {
  set_caption("Custom file search");

  view1.on_item_click = [this](int row) { row_clicked(row); };
  Command3.on_click = [this] { add_entry(); };
  Command4.on_click = [this] { edit_entry(); };
  Command2.on_click = [this] { delete_entry(); };
  Command1.on_click = [this] { unload(); };
  chameleonButton3.on_click = [this] { unload(); };
  Text1.on_change = [this] { read_mail(); };
}

void Form2::load() {
  changelangorv(session_, *this);
  set_back_color(suite_color(session_.platform));
  read_list();
}

void Form2::read_list() {
  const std::string path = session_.data_file(kCustomFile);
  const ListLines list = read_list_file(session_.platform, path);
  for (const std::string& line : list.lines) {
    const CustomEntry entry = custom_entry_of(line);
    set_custom_entry(view1, view1.add(""), entry);
  }
  was_read_ = list.problem.empty();
  Command3.set_locked(!was_read_);
  if (!was_read_) tell_custom_list_problem(session_, list.problem);
}

// The rows take the place of the old file at one stroke. One that cannot be removed cannot be
// written either, and stays as it was.
void Form2::write_list() {
  if (!was_read_) return;  // what is not shown would be lost
  std::vector<std::string> lines;
  for (int row = 1; row <= view1.count(); ++row) {
    lines.push_back(line_of(custom_entry_at(view1, row)));
  }
  static_cast<void>(write_list_file(session_.platform, session_.data_file(kCustomFile), lines));
}

void tell_custom_list_problem(const Session& session, const std::string& problem) {
  session.platform.dialogs.message_box(
      list_problem_message(session.data_file(kCustomFile), problem,
                           "The list is not changed while it cannot be read."),
      "Custom file search", kBoxIconWarning);
}

void Form2::read_mail() {
  const double mail = Val(Text1.text());
  if (mail == 1) {
    view1.clear();
    read_list();
    Text1.set_text("0");
  } else if (mail == 2) {
    write_list();
    Text1.set_text("0");
  }
}

void Form2::row_clicked(int row) {
  row_ = row;
  Command4.set_enabled(true);
  Command2.set_enabled(true);
}

void Form2::add_entry() {
  if (windows_.find("Form5") != nullptr) return;
  Form5 dialog(session_, *this, mail_box_);
  dialog.load();
  windows_.show(dialog);
}

void Form2::edit_entry() {
  if (windows_.find("Form5") != nullptr) return;
  Form5 dialog(session_, *this, mail_box_);
  dialog.load();
  if (has_row()) dialog.fill(custom_entry_at(view1, row_));
  dialog.Text5.set_text(std::to_string(row_));
  windows_.show(dialog);
}

void Form2::delete_entry() {
  if (has_row()) view1.remove(row_);
  write_list();
  Command2.set_enabled(false);
  Command4.set_enabled(false);
  row_ = 0;
}

}  // namespace quillvane
