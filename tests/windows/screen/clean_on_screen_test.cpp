// Cleaning as a user works it.
#include <gtest/gtest.h>

#include "tests/windows/screen/junk_page.h"

namespace quillvane {
namespace {

using CleanOnScreen = JunkPage;

TEST_F(CleanOnScreen, AsksAndKeepsEverythingAfterNo) {
  have_result();
  const int rows = program_.rows(whole_list());

  program_.click("Start Cleaning");
  const HWND box = await_box(program_, "Please Confirm");
  EXPECT_EQ(program_.box_text(box), "Are You sure you want to delete the selected file(s)");
  keep_picture("window-question", program_.area());
  answer_box(box, "No");

  EXPECT_EQ(program_.rows(whole_list()), rows);
  EXPECT_EQ(junk_.still_there(), 4);
}

TEST_F(CleanOnScreen, RemovesWhatWasFoundAfterYesAndScansAgain) {
  have_result();

  program_.click("Start Cleaning");
  answer_box(await_box(program_, "Please Confirm"), "Yes");

  ASSERT_TRUE(eventually("clean folders", [this] { return junk_.still_there() == 0; }));
  ASSERT_TRUE(eventually("the scan that follows", [this] {
    return program_.nodes()[6].text == "Log Files ( 0 files, 0 B )" &&
           program_.is_enabled("Start Cleaning");
  }));
  keep_picture("window-cleaned", program_.area());
}

}  // namespace
}  // namespace quillvane
