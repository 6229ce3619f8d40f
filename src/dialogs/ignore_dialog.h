// Form1, the ignore list: folders and files that no scan takes for junk.
#pragma once

#include "core/program.h"
#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/modal_window.h"

namespace quillvane {

class Form1 final : public ModalWindow {
 public:
  explicit Form1(Program& program);

  // Takes the suite's colour and reads the list. A missing file is an empty list.
  void load();

  Label Label222_1;         // the title
  Button chameleonButton3;  // the close cross: leaves without saving
  Label Label1;             // says what the list is for
  ListView view1;           // the entries, as they stand in ignore.tdw
  Button Command3;          // adds a folder
  Button Command4;          // removes the row clicked last
  Button Command2;          // saves and leaves
  Button Command1;          // leaves without saving

 private:
  void add_folder();
  void remove_row();
  void save();

  Program& program_;
  int row_ = 0;  // clicked last; 0: none
};

}  // namespace quillvane
