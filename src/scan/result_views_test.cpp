// The two result lists: what a click on a node shows, and the acts on the rows.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

// The hit list holds one row of each category from 1 to 26; 25 and 26 are custom entries.
struct Staged : ScanFixture {
  Staged() {
    add_program_file("custom.tdw", "Docs|C:\\Docs\r\nMail|C:\\Mail\r\n");
    Form7& form = start();
    for (const int category : numbers_from(1, 26)) {
      add_hit(form.view1, "C:\\hit" + std::to_string(category), category);
      form.view1.set_icon(category, std::to_string(category));
    }
  }
  Form7& form() { return program->main_window(); }

  // The categories of the rows that are shown.
  std::vector<int> shown() {
    std::vector<int> categories;
    for (const std::string& category : rows(form().view5, kCategoryColumn)) {
      categories.push_back(std::stoi(category));
    }
    return categories;
  }
};

TEST(NodeClick, ShowsTheRowsOfTheNode) {
  struct Case {
    int node;
    std::vector<int> shown;
  };
  const Case cases[] = {
      {1, numbers_from(1, 12)},
      {2, {2}},
      {11, {11}},
      {12, numbers_from(13, 23)},
      {13, {13}},
      {23, {23}},
      {24, {25, 26}},
      {25, {25}},
      {26, {26}},
  };
  Staged staged;
  for (const auto& [node, shown] : cases) {
    staged.form().Tv1.click_node(node);
    EXPECT_EQ(staged.shown(), shown) << node;
    EXPECT_EQ(staged.form().selnode, node);
  }
}

TEST(NodeClick, CopiesTextsAndIcons) {
  Staged staged;
  staged.form().Tv1.click_node(5);
  const ListView& list = staged.form().view5;
  ASSERT_EQ(list.count(), 1);
  EXPECT_EQ(list.text(1), "C:\\hit5");
  EXPECT_EQ(list.sub_item(1, kSizeColumn), "1 KB");
  EXPECT_EQ(list.icon(1), "5");
}

TEST(NodeClick, TicksTheRowsOfATickedNode) {
  Staged staged;
  staged.form().Tv1.tick_node(12, true);
  staged.form().Tv1.click_node(12);
  EXPECT_EQ(ticked(staged.form().view5), numbers_from(1, 11));  // rows of 13 to 23, all of them

  staged.form().Tv1.tick_node(12, false);
  staged.form().Tv1.click_node(12);
  EXPECT_EQ(ticked(staged.form().view5), std::vector<int>{});
}

TEST(NodeClick, ShowsARowWhoseNodeIsGoneThroughTheGroupAlone) {
  Staged staged;
  add_hit(staged.form().view1, "C:\\hit30", 30);
  staged.form().Tv1.click_node(24);
  EXPECT_EQ(staged.shown(), (std::vector{25, 26, 30}));
}

TEST(ResultLists, ARowClickNotesItsNumberAndTheList) {
  Staged staged;
  staged.form().Tv1.click_node(1);
  staged.form().view1.click_row(7);
  EXPECT_EQ(staged.form().Text8.text(), "7");
  EXPECT_EQ(staged.form().listfocus, 3);

  staged.form().listfocus = 0;
  staged.form().view5.click_row(2);
  EXPECT_EQ(staged.form().Text8.text(), "2");
  EXPECT_EQ(staged.form().listfocus, 3);
}

TEST(ResultLists, AColumnClickTurnsTheOrderOfTheHitListRound) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  for (const char* path : {"C:\\b", "C:\\a", "C:\\c"}) add_hit(form.view1, path, 2);

  form.view1.click_column(1);
  EXPECT_EQ(rows(form.view1), (Texts{"C:\\c", "C:\\b", "C:\\a"}));
  form.view1.click_column(1);
  EXPECT_EQ(rows(form.view1), (Texts{"C:\\a", "C:\\b", "C:\\c"}));
  form.view1.click_column(2);
  EXPECT_EQ(form.view1.sort_key(), 1);
}

TEST(ResultLists, TheShownListCannotBeSorted) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  for (const char* path : {"C:\\b", "C:\\a"}) add_hit(form.view5, path, 2);
  form.view5.click_column(1);
  EXPECT_EQ(rows(form.view5), (Texts{"C:\\b", "C:\\a"}));
  EXPECT_FALSE(form.view5.sorted());
}

TEST(ResultLists, TheMenuTicksAndClearsTheShownRowsOnly) {
  Staged staged;
  Form7& form = staged.form();
  form.Tv1.click_node(24);
  form.b7.click();
  EXPECT_EQ(ticked(form.view5), (std::vector{1, 2}));
  EXPECT_EQ(ticked(form.view1), std::vector<int>{});
  EXPECT_EQ(ticked(form.Tv1), std::vector<int>{});
  form.b8.click();
  EXPECT_EQ(ticked(form.view5), std::vector<int>{});
}

TEST(ResultLists, SelectAllLeavesTheWholeResultShown) {
  Staged staged;
  Form7& form = staged.form();
  form.Tv1.click_node(5);
  form.Toolbar1.set_button_enabled(9, true);
  form.Toolbar1.set_button_enabled(10, true);

  form.Toolbar1.click_button(9);
  EXPECT_EQ(staged.shown(), numbers_from(1, 26));
  EXPECT_EQ(ticked(form.view5), numbers_from(1, 26));
  EXPECT_EQ(ticked(form.Tv1), numbers_from(1, 26));

  form.Toolbar1.click_button(10);
  EXPECT_EQ(staged.shown(), numbers_from(1, 26));
  EXPECT_EQ(ticked(form.view5), std::vector<int>{});
  EXPECT_EQ(ticked(form.Tv1), std::vector<int>{});
}

}  // namespace
}  // namespace quillvane
