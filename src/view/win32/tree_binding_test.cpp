#include "view/win32/tree_binding.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <string>

#include "forms/window.h"
#include "platform/win32/wide_text.h"
#include "tests/windows/view_stage.h"

namespace quillvane {
namespace {

class TreeBindingTest : public testing::Test {
 protected:
  TreeBindingTest() {
    stage_.attach(binding_);
    fill();
    stage_.settle();
  }

  void fill() {
    tree_.add("", "w", "Windows", 1);
    tree_.add("w", "st", "System Temporary", 1);
    tree_.add("w", "ut", "User Temporary", 2);
    tree_.set_bold(1, true);
    tree_.set_expanded(1, true);
  }

  LRESULT send(UINT message, WPARAM w = 0, LPARAM l = 0) const {
    return SendMessageW(binding_.window(), message, w, l);
  }
  [[nodiscard]] HTREEITEM next(WPARAM what, HTREEITEM from) const {
    return reinterpret_cast<HTREEITEM>(send(TVM_GETNEXTITEM, what, reinterpret_cast<LPARAM>(from)));
  }
  [[nodiscard]] HTREEITEM group() const { return next(TVGN_ROOT, nullptr); }
  [[nodiscard]] HTREEITEM leaf() const { return next(TVGN_CHILD, group()); }
  [[nodiscard]] std::string text(HTREEITEM node) const {
    wchar_t shown[100] = L"";
    TVITEMW item{};
    item.mask = TVIF_TEXT;
    item.hItem = node;
    item.pszText = shown;
    item.cchTextMax = 100;
    send(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return narrow(shown);
  }
  [[nodiscard]] UINT state(HTREEITEM node) const {
    return static_cast<UINT>(send(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(node), ~0));
  }
  [[nodiscard]] bool ticked(HTREEITEM node) const {
    return (state(node) & TVIS_STATEIMAGEMASK) == INDEXTOSTATEIMAGEMASK(2);
  }

  static constexpr ControlPlace kPlace = {"Tv1", ControlKind::kTree, 0,  0,  1,         Pack::kFill,
                                          0,     "Categories",       {}, {}, "category"};
  ViewStage stage_;
  Window window_{"Form7"};
  TreeView tree_{window_, "Tv1"};
  TreeBinding binding_{stage_, tree_, kPlace};
};

TEST_F(TreeBindingTest, NodesStandBelowTheirGroups) {
  EXPECT_EQ(send(TVM_GETCOUNT), 3);
  EXPECT_EQ(text(group()), "Windows");
  EXPECT_NE(state(group()) & TVIS_BOLD, 0U);
  EXPECT_NE(state(group()) & TVIS_EXPANDED, 0U);
  EXPECT_EQ(text(leaf()), "System Temporary");
  EXPECT_EQ(text(next(TVGN_NEXT, leaf())), "User Temporary");
  EXPECT_EQ(state(leaf()) & TVIS_BOLD, 0U);
}

TEST_F(TreeBindingTest, ANewTextReplacesTheOldInPlace) {
  const HTREEITEM before = leaf();
  tree_.set_text(2, "System Temporary ( 12 files, 3.41 MB )");
  stage_.settle();

  EXPECT_EQ(leaf(), before);
  EXPECT_EQ(text(leaf()), "System Temporary ( 12 files, 3.41 MB )");
}

TEST_F(TreeBindingTest, ATreeThatIsBuiltAnewWithOtherNodesIsFilledAnew) {
  tree_.clear();
  fill();
  tree_.add("", "f", "Custom Files and Folders", 1);
  stage_.settle();

  EXPECT_EQ(send(TVM_GETCOUNT), 4);
  EXPECT_EQ(text(next(TVGN_NEXT, group())), "Custom Files and Folders");
}

TEST_F(TreeBindingTest, TickingANodeInTheControlTicksItInTheModel) {
  int reported = 0;
  tree_.on_node_check = [&reported](int index) { reported = index; };
  send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(leaf()));

  send(WM_KEYDOWN, VK_SPACE);
  EXPECT_FALSE(tree_.node(2).checked);  // not before its turn
  stage_.settle();

  EXPECT_TRUE(tree_.node(2).checked);
  EXPECT_EQ(reported, 2);
  EXPECT_TRUE(ticked(leaf()));
  EXPECT_FALSE(ticked(group()));
}

TEST_F(TreeBindingTest, TheArrowKeysClickTheNodeThatTheyReach) {
  int clicked = 0;
  tree_.on_node_click = [&clicked](int index) { clicked = index; };
  tree_.select(1);
  stage_.settle();

  send(WM_KEYDOWN, VK_DOWN);
  stage_.settle();

  EXPECT_EQ(clicked, 2);
}

TEST_F(TreeBindingTest, SelectingInTheModelIsNoClick) {
  int clicks = 0;
  tree_.on_node_click = [&clicks](int /*index*/) { ++clicks; };

  tree_.select(3);
  stage_.settle();

  EXPECT_EQ(next(TVGN_CARET, nullptr), next(TVGN_NEXT, leaf()));
  EXPECT_EQ(clicks, 0);
}

TEST_F(TreeBindingTest, AGroupThatTheUserClosesIsClosedInTheModel) {
  send(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(group()));
  send(WM_KEYDOWN, VK_LEFT);
  stage_.settle();

  EXPECT_FALSE(tree_.node(1).expanded);
  EXPECT_EQ(state(group()) & TVIS_EXPANDED, 0U);
}

}  // namespace
}  // namespace quillvane
