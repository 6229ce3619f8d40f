// The page of the drives: which of them are searched, and the memory of the ticks.
#pragma once

#include <string>

#include "forms/buttons.h"
#include "forms/field.h"
#include "forms/list_box.h"
#include "forms/list_view.h"
#include "forms/page.h"

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
  ListView View2{window, "View2", {"Name", "Total", "Free Space", "Status"}};
  Button chameleonButton6{window, "chameleonButton6",
                          kHidden};  // holds the way to the page of the drives

  Field<int> anydrivechecked{window, "anydrivechecked"};  // 1 when a row of View2 is ticked

 private:
  void drive_ticked();

  std::string drives_problem_;  // why the stored drives could not be read
};

}  // namespace quillvane
