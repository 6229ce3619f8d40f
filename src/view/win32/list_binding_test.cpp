#include "view/win32/list_binding.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <string>

#include "forms/window.h"
#include "platform/win32/wide_text.h"
#include "tests/windows/view_stage.h"

namespace quillvane {
namespace {

// Rows that are made up as they are asked for; counts the questions.
class MadeUpRows final : public RowSource {
 public:
  [[nodiscard]] std::string text(std::size_t index, int column) const override {
    ++asked;
    return "row " + std::to_string(index) + " column " + std::to_string(column);
  }
  [[nodiscard]] std::optional<std::string> icon(std::size_t /*index*/) const override {
    return "1";
  }
  [[nodiscard]] int column_count(std::size_t /*index*/) const override { return 3; }

  mutable int asked = 0;
};

class ListBindingTest : public testing::Test {
 protected:
  ListBindingTest() { stage_.attach(binding_); }

  LRESULT send(UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(binding_.window(), message, w, l);
  }
  // What the control shows; rows from 0.
  [[nodiscard]] std::string shown(int row, int column) const {
    wchar_t text[100] = L"";
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = text;
    item.cchTextMax = 100;
    send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
    return narrow(text);
  }
  [[nodiscard]] bool ticked(int row) const {
    return send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_STATEIMAGEMASK) ==
           static_cast<LRESULT>(INDEXTOSTATEIMAGEMASK(2));
  }
  [[nodiscard]] bool selected(int row) const {
    return send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) != 0;
  }
  void press(WPARAM key) const { send(WM_KEYDOWN, key); }

  static constexpr ControlPlace kPlace = {
      "view5", ControlKind::kList, 0, 0, 1, Pack::kFill, 0, "Files", {}, {}, "category"};
  ViewStage stage_;
  Window window_{"Form7"};
  ListView list_{window_, "view5", {"File Name", "Size", "Date"}};
  ListBinding binding_{stage_, list_, kPlace};
};

TEST_F(ListBindingTest, ARowAddedToTheModelAppearsInTheControl) {
  list_.add("C:\\Temp\\\u00E9t\u00E9.tmp");
  list_.set_sub_item(1, 1, "3.41 MB");
  stage_.settle();

  EXPECT_EQ(send(LVM_GETITEMCOUNT), 1);
  EXPECT_EQ(shown(0, 0), "C:\\Temp\\\u00E9t\u00E9.tmp");
  EXPECT_EQ(shown(0, 1), "3.41 MB");
  EXPECT_EQ(shown(0, 2), "");
}

TEST_F(ListBindingTest, OneRefreshIsAskedForHoweverManyRowsAreAdded) {
  stage_.refreshes_asked = 0;
  for (int i = 0; i < 1000; ++i) list_.add("row");

  EXPECT_EQ(stage_.refreshes_asked, 1);
}

TEST_F(ListBindingTest, AMillionRowsAreShownWithoutReadingThem) {
  constexpr int kRows = 1'000'000;
  const auto rows = std::make_shared<MadeUpRows>();
  const std::uint32_t source = list_.add_source(rows);
  for (int i = 0; i < kRows; ++i) list_.add_from(source, static_cast<std::size_t>(i));
  stage_.settle();

  EXPECT_EQ(send(LVM_GETITEMCOUNT), kRows);
  send(LVM_ENSUREVISIBLE, kRows - 1, FALSE);
  EXPECT_EQ(shown(kRows - 1, 1), "row 999999 column 1");
  EXPECT_LT(rows->asked, 1000);
}

TEST_F(ListBindingTest, ARowThatIsGoneBeforeTheControlKnowsIsEmpty) {
  list_.add("first");
  list_.add("second");
  stage_.settle();

  list_.remove(1);

  EXPECT_EQ(shown(0, 0), "second");
  EXPECT_EQ(shown(1, 0), "");
}

TEST_F(ListBindingTest, TicksAreTheModels) {
  list_.add("a");
  list_.add("b");
  list_.set_checked(2, true);
  stage_.settle();

  EXPECT_FALSE(ticked(0));
  EXPECT_TRUE(ticked(1));
}

TEST_F(ListBindingTest, TheSpaceBarTicksTheRowInHandInTheModel) {
  int reported = 0;
  list_.on_item_check = [&reported](int row) { reported = row; };
  list_.add("a");
  list_.add("b");
  stage_.settle();
  press(VK_DOWN);
  press(VK_DOWN);
  stage_.settle();

  press(VK_SPACE);
  stage_.settle();

  EXPECT_TRUE(list_.checked(2));
  EXPECT_EQ(reported, 2);
  EXPECT_TRUE(ticked(1));
}

TEST_F(ListBindingTest, ARowThatGetsTheFocusIsClickedInTheModel) {
  int clicked = 0;
  list_.on_item_click = [&clicked](int row) { clicked = row; };
  list_.add("a");
  list_.add("b");
  stage_.settle();

  press(VK_DOWN);
  press(VK_DOWN);
  stage_.settle();

  EXPECT_EQ(clicked, 2);
}

TEST_F(ListBindingTest, ARowSelectedInTheModelIsSelectedInTheControl) {
  for (const char* text : {"a", "b", "c"}) list_.add(text);
  list_.set_selected(2, true);
  stage_.settle();
  EXPECT_TRUE(selected(1));

  list_.set_selected(2, false);
  list_.set_selected(3, true);
  stage_.settle();

  EXPECT_FALSE(selected(1));
  EXPECT_TRUE(selected(2));
}

TEST_F(ListBindingTest, TheRowInHandIsTheOneSelectedInTheModel) {
  list_.add("a");
  list_.add("b");
  stage_.settle();

  press(VK_DOWN);
  press(VK_DOWN);
  stage_.settle();

  EXPECT_FALSE(list_.selected(1));
  EXPECT_TRUE(list_.selected(2));
  EXPECT_TRUE(selected(1));
}

TEST_F(ListBindingTest, ARemovedRowLeavesNoSelectionToTheNext) {
  list_.add("a");
  list_.add("b");
  list_.set_selected(1, true);
  stage_.settle();

  list_.remove(1);
  stage_.settle();

  EXPECT_EQ(shown(0, 0), "b");
  EXPECT_FALSE(selected(0));
}

TEST_F(ListBindingTest, ASelectionThatTheControlLosesIsDrawnAgain) {
  list_.add("a");
  list_.set_selected(1, true);
  stage_.settle();
  ASSERT_TRUE(selected(0));

  LVITEMW none{};
  none.stateMask = LVIS_SELECTED;
  send(LVM_SETITEMSTATE, 0, reinterpret_cast<LPARAM>(&none));
  stage_.settle();

  EXPECT_TRUE(selected(0));
}

}  // namespace
}  // namespace quillvane
