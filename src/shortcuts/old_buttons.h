// The older row of buttons of the shortcut window. It has no place on the screen; what its buttons
// hold is run by the commands of today.
#pragma once

#include "forms/buttons.h"
#include "forms/page.h"
#include "forms/simple_controls.h"

namespace quillvane {

class OldButtons : public virtual Page {
 public:
  OldButtons(Window& owner, Session& shared) : Page(owner, shared) {}

  Frame Frame5{window, "Frame5", kHidden};              // the row of buttons
  Button orvbutton1{window, "orvbutton1"};              // holds the scan
  Button orvbutton2{window, "orvbutton2"};              // holds the older removal
  Button orvbutton3{window, "orvbutton3"};              // holds the search for targets
  Button orvbutton6{window, "orvbutton6"};              // ticks and selects every row
  Button orvbutton9{window, "orvbutton9"};              // unticks and deselects every row
  Button orvbutton10{window, "orvbutton10"};            // stores the options
  Button chameleonButton1{window, "chameleonButton1"};  // holds the removal with a backup
  Button chameleonButton2{window, "chameleonButton2"};  // shows the panel of where to look
  // stops the scan
  Button chameleonButton3{window, "chameleonButton3", {.caption = "Cancel"}};
  Button chameleonButton4{window, "chameleonButton4"};  // as orvbutton9
  Button chameleonButton5{window, "chameleonButton5"};  // as orvbutton6
  Button chameleonButton7{window, "chameleonButton7"};  // opens the help
  Button Command1{window, "Command1", kHidden};         // holds the scan of the start menu
  Button Command2{window, "Command2", kHidden};         // holds the scan of the ticked drives
  Button Command3{window, "Command3", kHidden};         // reads the stored options
  Button Command7{window, "Command7", kHidden};  // fits the list to its window, which the view does
};

}  // namespace quillvane
