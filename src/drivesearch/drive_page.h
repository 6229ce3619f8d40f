// The page of the drives: which of them are searched, and the memory of the ticks.
#pragma once

#include <chrono>
#include <string>

#include "forms/buttons.h"
#include "forms/field.h"
#include "forms/list_box.h"
#include "forms/list_view.h"
#include "forms/page.h"
#include "forms/text_box.h"
#include "forms/timer.h"

namespace quillvane {

class DrivePage : public virtual Page {
 public:
  DrivePage(Window& window, Session& session);

  // Puts the machine's drives into `drives`, and those that can be searched into View2.
  void fill_drive_list(ListBox& drives);
  // Ticks the drives that save_ticked_drives has written into the registry. What cannot be written
  // is forgotten.
  void restore_ticked_drives();
  void save_ticked_drives();

  // drives with their space; ticked ones are searched
  ListView View2{window,
                 "View2",
                 {"Name", "Total", "Free Space", "Status"},
                 {.tool_tip = "Select disk driver you want to be checked"}};
  Button chameleonButton6{window, "chameleonButton6",
                          kHidden};  // holds the way to the page of the drives

  TextBox Text6{window, "Text6", kHidden};        // 1 while the drives are searched
  TextBox txtviewf{window, "txtviewf", kHidden};  // number of the row of View2 in work
  TextBox txttime{window, "txttime", kHidden};    // 1 when the blink shows its first picture
  // the blink of the drive in work
  Timer Timer1{window, "Timer1", session.platform.loop, std::chrono::milliseconds(1000)};

  Field<int> anydrivechecked{window, "anydrivechecked"};  // 1 when a row of View2 is ticked

 private:
  void drive_ticked();
  void blink();

  std::string drives_problem_;  // why the stored drives could not be read
};

}  // namespace quillvane
