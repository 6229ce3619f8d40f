// Form4, one row of the table of file types.
#pragma once

#include "forms/buttons.h"
#include "forms/list_view.h"
#include "forms/modal_window.h"
#include "forms/text_box.h"
#include "support/session.h"

namespace quillvane {

class Form4 final : public ModalWindow {
 public:
  // `types` is the table as it is shown; OK changes it and writes "1" into the mail box, so that
  // its owner saves it. `results` gets the keyboard when the window is closed by its button.
  Form4(Session& session, ListView& types, TextBox& mail_box, Control& results);

  // Takes the suite's colour.
  void load();
  // Shows the row that shall be changed.
  void fill(int row);

  Label Label222_1{*this, "Label222(1)", {.caption = "Add New File Type"}};  // the title
  Button chameleonButton3{*this, "chameleonButton3"};                        // the close cross
  Label Label1_0{*this, "Label1(0)", {.caption = "File Description"}};       // "File Description"
  TextBox Text1{*this, "Text1"};  // description of the type
  // "Enter file extension"
  Label Label1_1{*this, "Label1(1)", {.caption = "Enter file extension"}};
  TextBox Text2{*this, "Text2"};                             // its pattern
  Button Command1{*this, "Command1", {.caption = "OK"}};     // saves and leaves
  Button Command2{*this, "Command2", {.caption = "Close"}};  // leaves without saving
  TextBox Text3{*this, "Text3", kHidden};                    // the row to change; 0 for a new type

 private:
  void accept();
  [[nodiscard]] bool is_entered_already() const;
  void write_row(int row);

  Session& session_;
  ListView& types_;
  TextBox& mail_box_;
};

}  // namespace quillvane
