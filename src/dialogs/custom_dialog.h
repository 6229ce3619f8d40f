// Form2, the user's own categories: folders to search with patterns, one entry a row.
#pragma once

#include "core/program.h"
#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/modal_window.h"
#include "forms/text_box.h"

namespace quillvane {

class Form2 final : public ModalWindow {
 public:
  explicit Form2(Program& program);

  // Takes the suite's colour and reads the list. A missing file is an empty list.
  void load();

  Label Label222_1;         // the title
  Button chameleonButton3;  // the close cross
  Label Label1;             // says what the list is for
  ListView view1;           // the entries; sub-items: location, include, exclude, subfolders
  Button Command3;          // a new entry
  Button Command4;          // edits the row clicked last
  Button Command2;          // deletes the row clicked last
  Button Command1;          // leaves
  TextBox Text1;            // mailbox of Form5: "1" reads the list again, "2" writes it

 private:
  void read_list();
  void write_list();
  void read_mail();
  void row_clicked(int row);
  void add_entry();
  void edit_entry();
  void delete_entry();
  [[nodiscard]] bool has_row() const { return row_ >= 1 && row_ <= view1.count(); }

  Program& program_;
  int row_ = 0;           // clicked last; 0: none
  bool was_read_ = true;  // at the last reading; a missing list counts as read
};

// Tells the user that the list of custom folders was not read and is not changed.
void tell_custom_list_problem(const Program& program, const std::string& problem);

}  // namespace quillvane
