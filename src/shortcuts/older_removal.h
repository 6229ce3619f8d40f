// The older removal of the shortcut window, which has three ways: into the recycle bin, off the
// disk, or into a folder of the user's.
#pragma once

#include <string>

#include "forms/buttons.h"
#include "forms/page.h"
#include "forms/simple_controls.h"
#include "forms/text_box.h"
#include "shortcuts/result_page.h"

namespace quillvane {

class OlderRemoval : public virtual Page {
 public:
  OlderRemoval(Window& window, Session& session);

  // Removes the ticked links of `results` in the chosen way, when the user says so.
  void remove_links(ResultPage& results);
  // Lets the user choose the folder of the third way.
  void choose_destination();
  // Shows the one that was chosen at an earlier time.
  void read_destination();

  Frame Frame3{window, "Frame3"};           // panel of the three ways
  OptionButton Option1{window, "Option1"};  // into the recycle bin
  OptionButton Option2{window, "Option2"};  // off the disk
  OptionButton Option3{window, "Option3"};  // into the folder of Text1
  TextBox Text1{window, "Text1"};           // the folder of Option3
  Button orvbutton5{window, "orvbutton5"};  // chooses that folder

 private:
  [[nodiscard]] bool is_wanted();
  void remove_ticked(ResultPage& results);
  void recycle_ticked(ResultPage& results);
  void move_ticked(ResultPage& results);
  void move_link(const std::string& link);
};

}  // namespace quillvane
