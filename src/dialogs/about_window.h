// frmabout, the about window: name, version and links.
#pragma once

#include "core/program.h"
#include "forms/buttons.h"
#include "forms/modal_window.h"

namespace quillvane {

class frmabout final : public ModalWindow {
 public:
  explicit frmabout(Program& program);

  // Takes the suite's colour.
  void load();

  Label Label222_1;         // the title
  Button chameleonButton3;  // the close cross
  Label Label2_0;           // the program's name
  Label Label2_1;           // its version
  Label Label2_2;           // the maker's web address; opens it
  Label Label2_3;           // the support's mail address; begins a mail to it
  Label Label6;             // starts the suite's translation tool

 private:
  void open(const std::string& what);

  Program& program_;
};

}  // namespace quillvane
