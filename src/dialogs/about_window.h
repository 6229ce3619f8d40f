// frmabout, the about window: name, version and links.
#pragma once

#include "forms/buttons.h"
#include "forms/modal_window.h"
#include "forms/modal_windows.h"
#include "support/program_name.h"
#include "support/session.h"

namespace quillvane {

class frmabout final : public ModalWindow {
 public:
  explicit frmabout(Session& session);

  // Takes the suite's colour.
  void load();

  Label Label222_1{*this, "Label222(1)", {.caption = "About"}};   // the title
  Button chameleonButton3{*this, "chameleonButton3"};             // the close cross
  Label Label2_0{*this, "Label2(0)", {.caption = kProgramName}};  // the program's name
  Label Label2_1{*this, "Label2(1)", {.caption = "Version " QUILLVANE_VERSION}};  // its version
  // the maker's web address; opens it
  Label Label2_2{*this, "Label2(2)", {.caption = kWebAddress}};
  // the support's mail address; begins a mail to it
  Label Label2_3{*this, "Label2(3)", {.caption = kMailAddress}};
  // starts the suite's translation tool
  Label Label6{*this, "Label6", {.caption = "Translate this program"}};

 private:
  void open(const std::string& what);

  Session& session_;
};

// Opens the about window before the others and waits until it is closed; nothing happens while it
// is open already.
void show_about(Session& session, ModalWindows& windows);

}  // namespace quillvane
