#include "forms/tree_view.h"

#include <gtest/gtest.h>

#include <vector>

#include "forms/buttons.h"
#include "forms/window.h"
#include "tests/support/change_list.h"

namespace quillvane {
namespace {

// A group with two leaves.
struct Staged {
  Staged() {
    tree.add("", "w", "Windows", 1);
    tree.add("w", "st", "System Temporary", 1);
    tree.add("w", "ut", "User Temporary", 2);
  }

  Window window{"Form"};
  TreeView tree{window, "Tv1"};
};

TEST(TreeView, NumbersNodesInTheOrderOfAdding) {
  Window window("Form");
  TreeView tree(window, "Tv1");
  EXPECT_EQ(tree.add("", "w", "Windows", 1), 1);
  EXPECT_EQ(tree.add("w", "st", "System Temporary", 3), 2);

  const TreeNode& leaf = tree.node(2);
  EXPECT_EQ(tree.count(), 2);
  EXPECT_EQ(leaf.index, 2);
  EXPECT_EQ(leaf.key, "st");
  EXPECT_EQ(leaf.parent, "w");
  EXPECT_EQ(leaf.text, "System Temporary");
  EXPECT_EQ(leaf.image, 3);
}

TEST(TreeView, ANewNodeHasNoTickAndNoColour) {
  const Staged staged;
  const TreeNode& node = staged.tree.node(1);
  EXPECT_FALSE(node.checked);
  EXPECT_FALSE(node.bold);
  EXPECT_FALSE(node.expanded);
  EXPECT_EQ(node.fore_color, 0U);
}

TEST(TreeView, SettersWriteTheirNodeAlone) {
  Staged staged;
  staged.tree.set_text(2, "new");
  staged.tree.set_checked(2, true);
  staged.tree.set_bold(2, true);
  staged.tree.set_expanded(2, true);
  staged.tree.set_node_color(2, 192);

  const TreeNode& node = staged.tree.node(2);
  EXPECT_EQ(node.text, "new");
  EXPECT_TRUE(node.checked && node.bold && node.expanded);
  EXPECT_EQ(node.fore_color, 192U);
  EXPECT_EQ(staged.tree.node(3).text, "User Temporary");
  EXPECT_FALSE(staged.tree.node(3).checked);
}

TEST(TreeView, SettersPassOverAMissingNode) {
  Staged staged;
  ChangeList seen;
  staged.tree.observe(seen);
  for (const int missing : {-1, 0, 4}) {
    staged.tree.set_text(missing, "new");
    staged.tree.set_checked(missing, true);
    staged.tree.set_node_color(missing, 192);
    EXPECT_EQ(staged.tree.find(missing), nullptr) << missing;
  }
  EXPECT_EQ(seen.changes, std::vector<Change>{});
}

TEST(TreeView, ClearTakesAllNodesAndTheSelection) {
  Staged staged;
  staged.tree.select(2);
  EXPECT_EQ(staged.tree.selected(), 2);

  staged.tree.clear();

  EXPECT_EQ(staged.tree.count(), 0);
  EXPECT_EQ(staged.tree.selected(), 0);
  EXPECT_EQ(staged.tree.add("", "b", "Browsers", 1), 1);
}

TEST(TreeView, AClickSelectsTheNodeAndTellsIt) {
  Staged staged;
  std::vector<int> clicked;
  staged.tree.on_node_click = [&](int index) { clicked.push_back(index); };
  staged.tree.click_node(3);
  EXPECT_EQ(clicked, (std::vector<int>{3}));
  EXPECT_EQ(staged.tree.selected(), 3);
}

TEST(TreeView, AUsersTickIsSetBeforeItIsTold) {
  Staged staged;
  std::vector<bool> seen;
  staged.tree.on_node_check = [&](int index) { seen.push_back(staged.tree.node(index).checked); };
  staged.tree.tick_node(2, true);
  staged.tree.tick_node(2, false);
  EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST(TreeView, ATickByTheProgramTellsNoUsersTick) {
  Staged staged;
  int told = 0;
  staged.tree.on_node_check = [&](int) { ++told; };
  staged.tree.set_checked(2, true);
  EXPECT_EQ(told, 0);
}

TEST(TreeView, ActsOnADisabledTreeOrAMissingNodeDoNothing) {
  Staged staged;
  int told = 0;
  staged.tree.on_node_click = [&](int) { ++told; };
  staged.tree.on_node_check = [&](int) { ++told; };

  staged.tree.click_node(0);
  staged.tree.tick_node(4, true);
  staged.tree.set_enabled(false);
  staged.tree.click_node(2);
  staged.tree.tick_node(2, true);

  EXPECT_EQ(told, 0);
  EXPECT_FALSE(staged.tree.node(2).checked);
}

TEST(TreeView, TheRightButtonOpensTheHandlersMenu) {
  Staged staged;
  EXPECT_EQ(staged.tree.right_click(), nullptr);
  Menu menu(staged.window, "sc", "scan", {});
  staged.tree.on_right_click = [&] { return &menu; };
  EXPECT_EQ(staged.tree.right_click(), &menu);
}

TEST(TreeView, TellsItsObserversOfNodesAndTicks) {
  Window window("Form");
  TreeView tree(window, "Tv1");
  ChangeList seen;
  tree.observe(seen);
  tree.add("", "w", "Windows", 1);
  tree.set_checked(1, true);
  EXPECT_EQ(seen.changes, (std::vector{Change::kItems, Change::kItemState}));
}

}  // namespace
}  // namespace quillvane
