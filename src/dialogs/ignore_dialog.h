// Form1, the ignore list: folders and files that no scan takes for junk.
#pragma once

#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/modal_window.h"
#include "forms/text_box.h"
#include "support/session.h"

namespace quillvane {

class Form1 final : public ModalWindow {
 public:
  // A save writes "i" into the mail box, so that its owner reads the list again.
  Form1(Session& session, TextBox& mail_box);

  // Takes the suite's colour and reads the list. A missing file is an empty list.
  void load();

  Label Label222_1{*this, "Label222(1)", {.caption = "Ignore list"}};  // the title
  Button chameleonButton3{*this, "chameleonButton3"};  // the close cross: leaves without saving
  // says what the list is for
  Label Label1{*this,
               "Label1",
               {.caption = "All folders and files in this list will not considered as junk files"}};
  ListView view1{*this, "view1", {"Folder"}};  // the entries, as they stand in ignore.tdw
  Button Command3{*this, "Command3", {.caption = "Add"}};  // adds a folder
  // removes the row clicked last
  Button Command4{*this, "Command4", {.caption = "Remove", .disabled = true}};
  Button Command2{*this, "Command2", {.caption = "Save"}};   // saves and leaves
  Button Command1{*this, "Command1", {.caption = "Close"}};  // leaves without saving

 private:
  void add_folder();
  void remove_row();
  void save();

  Session& session_;
  TextBox& mail_box_;
  int row_ = 0;  // clicked last; 0: none
};

}  // namespace quillvane
