#include "view/win32/check_box_view.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "forms/window.h"
#include "tests/windows/view_stage.h"

namespace quillvane {
namespace {

class CheckBoxViewTest : public testing::Test {
 protected:
  CheckBoxViewTest() { stage_.attach(view_); }

  [[nodiscard]] bool ticked() const {
    return SendMessageW(view_.window(), BM_GETCHECK, 0, 0) == BST_CHECKED;
  }

  static constexpr ControlPlace kPlace = {
      "Check1", ControlKind::kCheckBox, 0, 0, 1, Pack::kFill, 0, {}, {}, {}, {}};
  ViewStage stage_;
  Window window_{"Form5"};
  CheckBox box_{window_, "Check1"};
  CheckBoxView view_{stage_, box_, kPlace};
};

TEST_F(CheckBoxViewTest, TheModelsTickIsShown) {
  box_.set_checked(true);
  stage_.settle();
  EXPECT_TRUE(ticked());

  box_.set_checked(false);
  stage_.settle();
  EXPECT_FALSE(ticked());
}

TEST_F(CheckBoxViewTest, AClickTurnsTheModelsTickOver) {
  SendMessageW(view_.window(), BM_CLICK, 0, 0);
  stage_.settle();

  EXPECT_TRUE(box_.checked());
  EXPECT_TRUE(ticked());
}

TEST_F(CheckBoxViewTest, ADisabledBoxKeepsItsTick) {
  box_.set_enabled(false);

  view_.commanded(BN_CLICKED);
  stage_.settle();

  EXPECT_FALSE(box_.checked());
  EXPECT_FALSE(ticked());
}

}  // namespace
}  // namespace quillvane
