#include "dialogs/ignore_dialog.h"

#include <string>

#include "dialogs/select_folder.h"
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
  set_back_color(suite_color(session_.platform));
  for (const std::string& line :
       read_list_lines(session_.platform.files, session_.data_file(kIgnoreFile))) {
    view1.add(line);
  }
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
  std::string lines;
  for (int row = 1; row <= view1.count(); ++row) lines += view1.text(row) + "\r\n";
  // Without a word when it cannot be written: the main window then reads the old list again.
  static_cast<void>(session_.platform.files.write_file(session_.data_file(kIgnoreFile), lines));
  mail_box_.set_text("i");
  unload();
}

}  // namespace quillvane
