#include "shortcuts/where_page.h"

#include <string>

#include "platform/unicode_case.h"

namespace quillvane {

WherePage::WherePage(Window& owner, Session& shared) : Page(owner, shared) {
  Option4.set_group({&Option4, &Option5});
  Option5.set_group({&Option4, &Option5});
  Option4.choose();
  Label9_0.on_click = [this] { Option4.choose(); };
  Label9_1.on_click = [this] { Option5.choose(); };
  Label9_2.on_click = [this] { Check1.set_checked(!Check1.checked()); };
  View2.on_item_check = [this](int /*row*/) { Option5.choose(); };
}

void WherePage::fill_drive_list() {
  for (const std::string& drive : platform().drives.list()) {
    Drive1.add(drive);
    const std::string root = upper_case(drive.substr(0, 1)) + ":\\";
    if (platform().drives.type(root) == DriveType::kFixed) View2.add(drive);
  }
}

int WherePage::ticked_drives() const {
  int ticked = 0;
  for (int row = 1; row <= View2.count(); ++row) ticked += View2.checked(row) ? 1 : 0;
  return ticked;
}

}  // namespace quillvane
