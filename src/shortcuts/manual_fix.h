// Giving a link a target that the user chooses.
#pragma once

#include "forms/page.h"
#include "forms/text_box.h"
#include "shortcuts/result_page.h"

namespace quillvane {

class ManualFix : public virtual Page {
 public:
  ManualFix(Window& owner, Session& shared) : Page(owner, shared) {}

  // Asks for the new target of the row in hand and makes the link anew.
  void fix_row_in_hand(ResultPage& results);

  TextBox Text3{window, "Text3", kHidden};  // mailbox: "1" runs a new scan
};

}  // namespace quillvane
