#include "view/win32/edit_view.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "forms/window.h"
#include "platform/win32/wide_text.h"
#include "tests/windows/view_stage.h"

namespace quillvane {
namespace {

class EditViewTest : public testing::Test {
 protected:
  EditViewTest() { stage_.attach(view_); }

  void type(const wchar_t* text) const { SetWindowTextW(view_.window(), text); }
  [[nodiscard]] std::string shown() const {
    wchar_t text[100] = L"";
    GetWindowTextW(view_.window(), text, 100);
    return narrow(text);
  }

  static constexpr ControlPlace kPlace = {
      "Text1", ControlKind::kEdit, 0, 0, 1, Pack::kFill, 0, {}, {}, {}, {}};
  ViewStage stage_;
  Window window_{"Form5"};
  TextBox box_{window_, "Text1"};
  EditView view_{stage_, box_, kPlace};
};

TEST_F(EditViewTest, TheModelsTextIsShown) {
  box_.set_text("C:\\\u00E9t\u00E9");
  stage_.settle();

  EXPECT_EQ(shown(), "C:\\\u00E9t\u00E9");
}

TEST_F(EditViewTest, WhatIsTypedReachesTheModel) {
  int changes = 0;
  box_.on_change = [&changes] { ++changes; };

  type(L"C:\\Temp");
  stage_.settle();

  EXPECT_EQ(box_.text(), "C:\\Temp");
  EXPECT_EQ(changes, 1);
}

TEST_F(EditViewTest, WhatIsTypedOnMeanwhileIsNotOverwritten) {
  box_.on_change = [this] {
    if (box_.text() == "a") type(L"ab");
  };

  type(L"a");
  stage_.settle();

  EXPECT_EQ(shown(), "ab");
  EXPECT_EQ(box_.text(), "ab");
}

TEST_F(EditViewTest, ATextThatTheModelChangesIsShownChanged) {
  type(L"*.tmp|*.log");
  stage_.settle();

  box_.set_text("*.tmp,*.log");
  stage_.settle();

  EXPECT_EQ(shown(), "*.tmp,*.log");
}

}  // namespace
}  // namespace quillvane
