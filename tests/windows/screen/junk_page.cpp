#include "tests/windows/screen/junk_page.h"

namespace quillvane {

void JunkPage::SetUpTestSuite() {
  shared_junk_ = std::make_unique<PlantedJunk>();
  shared_program_ = std::make_unique<ProgramOnScreen>();
}

void JunkPage::TearDownTestSuite() {
  shared_program_ = nullptr;
  shared_junk_ = nullptr;
}

void JunkPage::have_result() const {
  if (summary().empty()) return scan();
  choose_tab(0, category_list());
  program_.click("Select None");  // shows the whole result again, without ticks
  ASSERT_TRUE(eventually("the whole result", [this] {
    const int rows = program_.rows(category_list());
    return rows == program_.rows(whole_list()) && !program_.row_ticked(category_list(), 0) &&
           !program_.row_ticked(category_list(), rows - 1);
  }));
}

void JunkPage::scan() const {
  program_.click("Start");
  ASSERT_TRUE(eventually("a scan", [this] { return program_.is_enabled("Cancel"); }));
  await_end_of_scan();
}

void JunkPage::await_end_of_scan() const {
  ASSERT_TRUE(eventually("the scan's end", [this] {
    return program_.is_enabled("Start") && !program_.is_enabled("Cancel") && !summary().empty();
  }));
}

void JunkPage::choose_all_files() const { choose_tab(1, whole_list()); }

void JunkPage::choose_tab(int number, HWND list) const {
  program_.click_tab(program_.control("Results"), number);
  ASSERT_TRUE(eventually("the list", [list] { return IsWindowVisible(list) != 0; }));
}

}  // namespace quillvane
