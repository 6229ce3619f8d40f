// Where the shortcut window looks: the start menu of the user, or drives that are ticked.
#pragma once

#include "forms/buttons.h"
#include "forms/list_box.h"
#include "forms/list_view.h"
#include "forms/page.h"
#include "forms/simple_controls.h"

namespace quillvane {

class WherePage : public virtual Page {
 public:
  WherePage(Window& window, Session& session);

  // Puts the machine's drives into Drive1, and the fixed ones into View2.
  void fill_drive_list();
  // How many rows of View2 are ticked.
  [[nodiscard]] int ticked_drives() const;

  Frame Frame2{window, "Frame2"};  // panel of where to look
  // the start menu and the recent documents
  OptionButton Option4{window, "Option4", {.caption = "Scan only users start menu."}};
  // the ticked drives
  OptionButton Option5{window, "Option5", {.caption = "Select Drive(s) to scan."}};
  ListView View2{window, "View2", {"Drive"}};  // fixed drives; ticked ones are searched
  ListBox Drive1{window, "Drive1", kHidden};   // the machine's drives
  // leaves out links that lead to drives which may not be there now
  CheckBox Check1{window,
                  "Check1",
                  {.caption = "Exclude shortcuts with targets referring to removable or network "
                              "drives."}};
  Label Label9_0{window, "Label9(0)", {.caption = Option4.caption()}};  // chooses Option4
  Label Label9_1{window, "Label9(1)", {.caption = Option5.caption()}};  // chooses Option5
  Label Label9_2{window, "Label9(2)", {.caption = Check1.caption()}};   // turns Check1 over
};

}  // namespace quillvane
