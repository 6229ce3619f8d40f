#include "shortcuts/manual_fix.h"

#include <string>

#include "shortcuts/rebuilt_link.h"
#include "support/text.h"

namespace quillvane {

void ManualFix::fix_row_in_hand(ResultPage& results) {
  window.set_topmost(false);
  const int row = results.row_in_hand();
  if (row == 0) return;
  const std::string link = results.link_path(row);
  const std::string missing(Trim(results.target(row)));
  const std::string name = missing.substr(missing.rfind('\\') + 1);
  const std::string chosen = platform().dialogs.open_file({"", "*.*", name});
  if (chosen.empty()) {
    results.Text2.set_text("");
    return;
  }
  const std::string path(Trim(link));
  rebuild_link(platform(), link,
               {.target = chosen,
                .working_directory = path.substr(0, path.rfind('\\') + 1),
                .icon_file = chosen});
  Text3.set_text("");
  Text3.set_text("1");
  window.set_topmost(true);
}

}  // namespace quillvane
