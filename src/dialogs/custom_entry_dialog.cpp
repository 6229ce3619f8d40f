#include "dialogs/custom_entry_dialog.h"

#include <string>

#include "dialogs/custom_dialog.h"
#include "dialogs/select_folder.h"
#include "lang/change_language.h"
#include "support/suite_color.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

Form5::Form5(Session& session, Form2& list, TextBox& mail_box)
    : ModalWindow("Form5"), session_(session), list_(list), mail_box_(mail_box) {
  set_caption("Custom file search");
  Text5.set_text("0");

  Text2.on_change = [this] { Command2.set_enabled(folder_exists()); };
  Command3.on_click = [this] { choose_folder(); };
  Command2.on_click = [this] { save(); };
  Command1.on_click = [this] { unload(); };
  chameleonButton3.on_click = [this] { unload(); };
}

void Form5::load() {
  changelangorv(session_, *this);
  set_back_color(suite_color(session_.platform));
}

void Form5::fill(const CustomEntry& entry) {
  Text1.set_text(entry.name);
  Text2.set_text(entry.location);
  Text3.set_text(entry.include);
  Text4.set_text(entry.exclude);
  Check1.set_checked(Val(entry.subfolders) == 1);
}

// A folder that was chosen allows saving, whether it is there or not; the save looks again.
void Form5::choose_folder() {
  const auto folder = select_folder(session_.platform);
  if (!folder) return;
  Text2.set_text(*folder);
  Command2.set_enabled(true);
}

bool Form5::folder_exists() const {
  const auto attributes = session_.platform.files.attributes(Text2.text());
  return attributes && (*attributes & kAttributeFolder) != 0;
}

CustomEntry Form5::entry() const {
  return {Text1.text(), Text2.text(), Text3.text(), Text4.text(), Check1.checked() ? "1" : "0"};
}

// Nothing guards the name and the location: an empty name is an empty first field, and a "|" in
// either shifts the fields of its line. Meant so.
void Form5::save() {
  for (TextBox* patterns : {&Text3, &Text4}) {
    patterns->set_text(replace_all(patterns->text(), "|", ","));
  }
  if (!folder_exists()) {
    session_.platform.dialogs.message_box("Please select folder !", "Folder not found",
                                          kBoxIconWarning);
    return;
  }
  const double row = Val(Text5.text());
  if (row > 0) {
    change_row(row);
  } else if (!add_row()) {
    return;
  }
  unload();
}

// The tree keeps the old name until it is next rebuilt. Meant so.
void Form5::change_row(double row) {
  if (row >= 1 && row <= list_.view1.count()) {
    set_custom_entry(list_.view1, static_cast<int>(row), entry());
  }
  list_.Text1.set_text("2");
}

// The question names an emptying, though nothing is emptied. Meant so: these are its words.
bool Form5::add_row() {
  const Answer sure =
      session_.platform.dialogs.message_box("Are you sure you want to empty this folder ?",
                                            "Custom folder search", kBoxYesNo | kBoxIconQuestion);
  if (sure == Answer::kNo) return false;
  const std::string problem =
      append_to_list_file(session_.platform, session_.data_file(kCustomFile), line_of(entry()));
  if (!problem.empty()) {
    tell_custom_list_problem(session_, problem);
    return false;
  }
  list_.Text1.set_text("1");
  mail_box_.set_text("c");
  return true;
}

CustomEntry custom_entry_at(const ListView& list, int row) {
  return {list.text(row), list.sub_item(row, 1), list.sub_item(row, 2), list.sub_item(row, 3),
          list.sub_item(row, 4)};
}

void set_custom_entry(ListView& list, int row, const CustomEntry& entry) {
  list.set_text(row, entry.name);
  list.set_sub_item(row, 1, entry.location);
  list.set_sub_item(row, 2, entry.include);
  list.set_sub_item(row, 3, entry.exclude);
  list.set_sub_item(row, 4, entry.subfolders);
}

}  // namespace quillvane
