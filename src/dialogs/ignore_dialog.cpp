#include "dialogs/ignore_dialog.h"

#include <string>
#include <vector>

#include "dialogs/select_folder.h"
#include "lang/change_language.h"
#include "support/list_files.h"
#include "support/suite_color.h"

namespace quillvane {

Form1::Form1(Session& session, TextBox& mail_box)
    : ModalWindow("Form1"), session_(session), mail_box_(mail_box) {
  set_caption("Ignore list");

  view1.on_item_click = [this](int row) {
    row_ = row;
    Command4.set_enabled(true);
  };
  Command3.on_click = [this] { add_folder(); };
  Command4.on_click = [this] { remove_row(); };
  Command2.on_click = [this] { save(); };
  Command1.on_click = [this] { unload(); };
  chameleonButton3.on_click = [this] { unload(); };
}

void Form1::load() {
  changelangorv(session_, *this);
  set_back_color(suite_color(session_.platform));
  const std::string path = session_.data_file(kIgnoreFile);
  const ListLines list = read_list_file(session_.platform, path);
  for (const std::string& line : list.lines) view1.add(line);
  if (list.problem.empty()) return;
  Command2.set_locked(true);  // what is not shown would be lost
  session_.platform.dialogs.message_box(
      list_problem_message(path, list.problem, "The list is not changed while it cannot be read."),
      "Ignore list", kBoxIconWarning);
}

// A folder can be added any number of times.
void Form1::add_folder() {
  if (const auto folder = select_folder(session_.platform)) view1.add(*folder);
}

void Form1::remove_row() {
  if (row_ >= 1 && row_ <= view1.count()) view1.remove(row_);
  Command4.set_enabled(false);
  row_ = 0;
}

void Form1::save() {
  std::vector<std::string> lines;
  for (int row = 1; row <= view1.count(); ++row) lines.push_back(view1.text(row));
  // When it cannot be written, the main window reads the old list again.
  static_cast<void>(write_list_file(session_.platform, session_.data_file(kIgnoreFile), lines));
  mail_box_.set_text("i");
  unload();
}

}  // namespace quillvane
