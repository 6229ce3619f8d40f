// Form2, the user's own categories: folders to search with patterns, one entry a row.
#pragma once

#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/modal_windows.h"
#include "forms/text_box.h"
#include "support/session.h"

namespace quillvane {

class Form2 final : public ModalWindow {
 public:
  // `windows` shows the window of one entry. A new entry writes "c" into the mail box, so that its
  // owner builds its tree again.
  Form2(Session& session, ModalWindows& windows, TextBox& mail_box);

  // Takes the suite's colour and reads the list. A missing file is an empty list.
  void load();

  Label Label222_1{*this, "Label222(1)", {.caption = "Custom file search"}};  // the title
  Button chameleonButton3{*this, "chameleonButton3"};                         // the close cross
  // says what the list is for
  Label Label1{
      *this, "Label1", {.caption = "The folders in this list are searched for junk files too"}};
  // the entries; sub-items: location, include, exclude, subfolders
  ListView view1{*this, "view1", {"Name", "Location"}};
  Button Command3{*this, "Command3", {.caption = "New"}};  // a new entry
  // edits the row clicked last
  Button Command4{*this, "Command4", {.caption = "Edit", .disabled = true}};
  // deletes the row clicked last
  Button Command2{*this, "Command2", {.caption = "Delete", .disabled = true}};
  Button Command1{*this, "Command1", {.caption = "Close"}};  // leaves
  // mailbox of Form5: "1" reads the list again, "2" writes it
  TextBox Text1{*this, "Text1", kHidden};

 private:
  void read_list();
  void write_list();
  void read_mail();
  void row_clicked(int row);
  void add_entry();
  void edit_entry();
  void delete_entry();
  [[nodiscard]] bool has_row() const { return row_ >= 1 && row_ <= view1.count(); }

  Session& session_;
  ModalWindows& windows_;
  TextBox& mail_box_;
  int row_ = 0;           // clicked last; 0: none
  bool was_read_ = true;  // at the last reading; a missing list counts as read
};

// Tells the user that the list of custom folders was not read and is not changed.
void tell_custom_list_problem(const Session& session, const std::string& problem);

}  // namespace quillvane
