#include "dialogs/ignore_dialog.h"

#include <string>
#include <vector>

#include "core/form7.h"
#include "dialogs/select_folder.h"
#include "support/list_files.h"
#include "support/suite_color.h"

namespace quillvane {

Form1::Form1(Program& program)
    : ModalWindow("Form1"),
      Label222_1(*this, "Label222(1)"),
      chameleonButton3(*this, "chameleonButton3"),
      Label1(*this, "Label1"),
      view1(*this, "view1", {"Folder"}),
      Command3(*this, "Command3"),
      Command4(*this, "Command4"),
      Command2(*this, "Command2"),
      Command1(*this, "Command1"),
      program_(program) {
  set_caption("Ignore list");
  Label222_1.set_caption("Ignore list");
  Label1.set_caption("All folders and files in this list will not considered as junk files");
  Command3.set_caption("Add");
  Command4.set_caption("Remove");
  Command2.set_caption("Save");
  Command1.set_caption("Close");
  Command4.set_enabled(false);

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
  set_back_color(suite_color(program_.platform));
  const std::string path = program_.data_file(kIgnoreFile);
  const ListLines list = read_list_file(program_.platform, path);
  for (const std::string& line : list.lines) view1.add(line);
  if (list.problem.empty()) return;
  Command2.set_locked(true);  // what is not shown would be lost
  program_.platform.dialogs.message_box(
      list_problem_message(path, list.problem, "The list is not changed while it cannot be read."),
      "Ignore list", kBoxIconWarning);
}

// A folder can be added any number of times.
void Form1::add_folder() {
  if (const auto folder = select_folder(program_.platform)) view1.add(*folder);
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
  write_list_file(program_.platform, program_.data_file(kIgnoreFile), lines);
  program_.main_window().Text14.set_text("i");
  unload();
}

}  // namespace quillvane
