// The category tree: its nodes, and what a tick on a node carries to.
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "scan/catalogue.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

struct NodeCase {
  int index;
  std::string_view key;
  std::string_view parent;
  std::string_view caption;
  int image;
};

constexpr NodeCase kNodes[] = {
    {1, "w", "", "Windows", 1},
    {2, "st", "w", "System Temporary", 1},
    {3, "ut", "w", "User Temporary", 2},
    {4, "tc", "w", "Thumbnail cache", 3},
    {5, "mdf", "w", "Memory Dump Files", 4},
    {6, "erf", "w", "Error Report Files", 5},
    {7, "slf", "w", "Log Files", 6},
    {8, "rb", "w", "Recycle Bin", 7},
    {9, "dp", "w", "Downloaded Programs", 8},
    {10, "wu0", "w", "Windows Updates & installer", 9},
    {11, "wh", "w", "Windows History", 10},
    {12, "b", "", "Browsers", 1},
    {13, "ie", "b", "Internet Explorer", 11},
    {14, "mfc", "b", "Mozila Firefox Cache", 12},
    {15, "gcc", "b", "Google Chrome Cache", 13},
    {16, "oc", "b", "Opera Cache", 14},
    {17, "me", "b", "Microsoft Edge", 15},
    {18, "brv", "b", "Brave Browser", 16},
    {19, "viv", "b", "Vivaldi Browser", 17},
    {20, "tor", "b", "Torch Browser", 18},
    {21, "max", "b", "Maxthon Browser", 19},
    {22, "ydx", "b", "Yandex Browser", 20},
    {23, "uc", "b", "UC Browser", 21},
    {24, "f", "", "Custom Files and Folders", 1},
};

TEST(CategoryTree, HoldsTheCatalogueInItsOrder) {
  ScanFixture fixture;
  const TreeView& tree = fixture.start().Tv1;
  ASSERT_GE(tree.count(), 24);
  for (const NodeCase& expected : kNodes) {
    const TreeNode& node = tree.node(expected.index);
    EXPECT_EQ(node.key, expected.key) << expected.index;
    EXPECT_EQ(node.parent, expected.parent) << expected.index;
    EXPECT_EQ(node.text, expected.caption) << expected.index;
    EXPECT_EQ(node.image, expected.image) << expected.index;
  }
}

TEST(CategoryTree, HasExactly24NodesWithoutACustomFile) {
  ScanFixture fixture;
  EXPECT_EQ(fixture.start().Tv1.count(), 24);
}

TEST(CategoryTree, OnlyTheGroupsAreBoldAndExpanded) {
  ScanFixture fixture;
  fixture.add_program_file("custom.tdw", "Docs|C:\\Docs|*.tmp||1\r\n");
  const TreeView& tree = fixture.start().Tv1;
  for (int index = 1; index <= tree.count(); ++index) {
    const bool group = index == 1 || index == 12 || index == 24;
    EXPECT_EQ(tree.node(index).bold, group) << index;
    EXPECT_EQ(tree.node(index).expanded, group) << index;
  }
}

TEST(CategoryTree, BeginsWithoutTicksAndColours) {
  ScanFixture fixture;
  const TreeView& tree = fixture.start().Tv1;
  EXPECT_EQ(ticked(tree), std::vector<int>{});
  for (int index = 1; index <= tree.count(); ++index) {
    EXPECT_EQ(tree.node(index).fore_color, 0U) << index;
  }
}

// --- Custom entries.

// Key and text of the nodes below "f", as "key: text".
Texts custom_nodes(const TreeView& tree) {
  Texts nodes;
  for (int index = kFirstCustomLeaf; index <= tree.count(); ++index) {
    const TreeNode& node = tree.node(index);
    EXPECT_EQ(node.parent, "f") << index;
    EXPECT_EQ(node.image, 22) << index;
    nodes.push_back(node.key + ": " + node.text);
  }
  return nodes;
}

TEST(CategoryTree, EachLineOfTheCustomFileIsANode) {
  ScanFixture fixture;
  fixture.add_program_file("custom.tdw",
                           "Docs|C:\\Docs|*.tmp||1\r\nOld Mail|D:\\Mail|*.bak||0\r\n");
  EXPECT_EQ(custom_nodes(fixture.start().Tv1), (Texts{"f-18: Docs", "f-19: Old Mail"}));
}

TEST(CategoryTree, ABlankLineMakesNoNodeAndTakesNoKey) {
  ScanFixture fixture;
  fixture.add_program_file("custom.tdw", "\r\nDocs|C:\\Docs\r\n    \r\nMail|D:\\Mail");
  EXPECT_EQ(custom_nodes(fixture.start().Tv1), (Texts{"f-18: Docs", "f-19: Mail"}));
}

TEST(CategoryTree, ACustomLineWithoutABarIsTheWholeCaption) {
  ScanFixture fixture;
  fixture.add_program_file("custom.tdw", "Just a name\r\n");
  EXPECT_EQ(custom_nodes(fixture.start().Tv1), (Texts{"f-18: Just a name"}));
}

TEST(CategoryTree, TheMailBoxRebuildsItFromTheNewFile) {
  ScanFixture fixture;
  fixture.add_program_file("custom.tdw", "Docs|C:\\Docs\r\n");
  Form7& form = fixture.start();
  add_hit(form.view1, "C:\\a.tmp", 2);
  form.append_result(2, 1, 10);
  form.Tv1.tick_node(2, true);

  fixture.add_program_file("custom.tdw", "Docs|C:\\Docs\r\nMail|D:\\Mail\r\n");
  form.Text14.set_text("c");

  EXPECT_EQ(custom_nodes(form.Tv1), (Texts{"f-18: Docs", "f-19: Mail"}));
  EXPECT_EQ(form.Tv1.node(2).text, "System Temporary");
  EXPECT_EQ(ticked(form.Tv1), std::vector<int>{});
  EXPECT_TRUE(form.Tv1.node(24).expanded);
  EXPECT_EQ(form.view1.count(), 1);
  EXPECT_EQ(form.Text14.text(), "");
}

// --- Results.

TEST(CategoryTree, AResultStandsBehindTheCaption) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.append_result(2, 12, 3575644);
  form.append_result(3, 0, 0);
  EXPECT_EQ(form.Tv1.node(2).text, "System Temporary ( 12 files, 3.41 MB )");
  EXPECT_EQ(form.Tv1.node(3).text, "User Temporary ( 0 files, 0 B )");
}

TEST(CategoryTree, ASecondResultStandsBehindTheFirst) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.append_result(2, 1, 10);
  form.append_result(2, 2, 20);
  EXPECT_EQ(form.Tv1.node(2).text, "System Temporary ( 1 files, 10 B ) ( 2 files, 20 B )");
}

// --- Ticks. Row n of both lists is of category n; rows 24 and above are custom ones.

struct Ticked : ScanFixture {
  Ticked() {
    add_program_file("custom.tdw", "Docs|C:\\Docs\r\nMail|D:\\Mail\r\n");
    Form7& form = start();
    for (const int category : numbers_from(1, 26)) {
      add_hit(form.view1, "C:\\file", category);
      add_hit(form.view5, "C:\\file", category);
    }
  }
  Form7& form() { return program->main_window(); }
};

TEST(TreeTick, ALeafCarriesItsTickToTheShownRowsOnly) {
  Ticked staged;
  staged.form().Tv1.tick_node(5, true);
  EXPECT_EQ(ticked(staged.form().view5), std::vector<int>{5});
  EXPECT_EQ(ticked(staged.form().view1), std::vector<int>{});

  staged.form().view1.set_checked(5, true);
  staged.form().Tv1.tick_node(5, false);
  EXPECT_EQ(ticked(staged.form().view5), std::vector<int>{});
  EXPECT_EQ(ticked(staged.form().view1), std::vector<int>{5});
}

TEST(TreeTick, AnUntickedLeafWithoutShownRowsChangesNothing) {
  Ticked staged;
  staged.form().view5.clear();
  staged.form().view1.set_checked(5, true);
  staged.form().Tv1.tick_node(5, false);
  EXPECT_EQ(ticked(staged.form().view1), std::vector<int>{5});
}

TEST(TreeTick, WindowsReachesNodes1To11AndRows1To12) {
  Ticked staged;
  staged.form().Tv1.tick_node(1, true);
  EXPECT_EQ(ticked(staged.form().Tv1), numbers_from(1, 11));
  EXPECT_EQ(ticked(staged.form().view5), numbers_from(1, 12));
  EXPECT_EQ(ticked(staged.form().view1), numbers_from(1, 12));
}

TEST(TreeTick, BrowsersReachesNodes12To23ButOnlyRows12To16) {
  Ticked staged;
  staged.form().Tv1.tick_node(12, true);
  EXPECT_EQ(ticked(staged.form().Tv1), numbers_from(12, 23));
  EXPECT_EQ(ticked(staged.form().view5), numbers_from(12, 16));
  EXPECT_EQ(ticked(staged.form().view1), numbers_from(12, 16));
}

TEST(TreeTick, CustomReachesNodes19ToTheLastAndRowsFrom17On) {
  Ticked staged;
  staged.form().Tv1.tick_node(24, true);
  EXPECT_EQ(ticked(staged.form().Tv1), numbers_from(19, 26));
  EXPECT_EQ(ticked(staged.form().view5), numbers_from(17, 26));
  EXPECT_EQ(ticked(staged.form().view1), numbers_from(17, 26));
}

struct UntickCase {
  int group;
  std::vector<int> nodes_left;
  std::vector<int> rows_left;
};

std::vector<int> joined(std::vector<int> left, const std::vector<int>& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

TEST(TreeTick, UntickingAGroupClearsWhatTickingItSets) {
  const UntickCase cases[] = {
      {1, numbers_from(12, 26), numbers_from(13, 26)},
      {12, joined(numbers_from(1, 11), numbers_from(24, 26)),
       joined(numbers_from(1, 11), numbers_from(17, 26))},
      {24, numbers_from(1, 18), numbers_from(1, 16)},
  };
  for (const UntickCase& untick : cases) {
    Ticked staged;
    Form7& form = staged.form();
    for (const int node : numbers_from(1, 26)) form.Tv1.set_checked(node, true);
    form.view1.check_all(true);
    form.view5.check_all(true);

    form.Tv1.tick_node(untick.group, false);

    EXPECT_EQ(ticked(form.Tv1), untick.nodes_left) << untick.group;
    EXPECT_EQ(ticked(form.view5), untick.rows_left) << untick.group;
    EXPECT_EQ(ticked(form.view1), untick.rows_left) << untick.group;
  }
}

TEST(CategoryTree, ACaptionIsTheTextWithoutTheResultBehindIt) {
  EXPECT_EQ(caption_of("Log Files"), "Log Files");
  EXPECT_EQ(caption_of("Log Files ( 3 files, 1.8 KB )"), "Log Files");
  EXPECT_EQ(caption_of("Log(s) ( 3 files, 1.8 KB ) ( 1 file, 2 B )"), "Log(s)");
  EXPECT_EQ(caption_of(""), "");
}

TEST(TreeTick, AChildNeverChangesItsParent) {
  Ticked staged;
  staged.form().Tv1.tick_node(1, true);
  staged.form().Tv1.tick_node(4, false);
  EXPECT_EQ(ticked(staged.form().Tv1), joined(numbers_from(1, 3), numbers_from(5, 11)));
}

TEST(TreeTick, TicksAreLostWithTheTree) {
  Ticked staged;
  staged.form().Tv1.tick_node(1, true);
  staged.form().startclean();
  EXPECT_EQ(ticked(staged.form().Tv1), std::vector<int>{});
}

TEST(TreeTick, SelectAllAndSelectNoneReachEveryNodeAndShownRow) {
  Ticked staged;
  Form7& form = staged.form();
  form.cmd_all.set_enabled(true);
  form.cmd_non.set_enabled(true);

  form.cmd_all.click();
  EXPECT_EQ(ticked(form.Tv1), numbers_from(1, 26));
  EXPECT_EQ(ticked(form.view5), numbers_from(1, 26));
  EXPECT_EQ(ticked(form.view1), std::vector<int>{});

  form.cmd_non.click();
  EXPECT_EQ(ticked(form.Tv1), std::vector<int>{});
  EXPECT_EQ(ticked(form.view5), std::vector<int>{});
}

}  // namespace
}  // namespace quillvane
