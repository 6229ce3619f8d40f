#include "forms/list_view.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "forms/buttons.h"
#include "forms/window.h"
#include "tests/support/change_list.h"

namespace quillvane {
namespace {

using Texts = std::vector<std::string>;

// Rows "file 0", "file 1", ... with their number in column 1 and an icon.
class CountedFiles final : public RowSource {
 public:
  explicit CountedFiles(bool* gone = nullptr) : gone_(gone) {}
  ~CountedFiles() override {
    if (gone_ != nullptr) *gone_ = true;
  }
  CountedFiles(const CountedFiles&) = delete;
  CountedFiles& operator=(const CountedFiles&) = delete;

  [[nodiscard]] std::string text(std::size_t index, int column) const override {
    if (column == 0) return "file " + std::to_string(index);
    return column == 1 ? std::to_string(index) + " KB" : std::string();
  }
  [[nodiscard]] std::optional<std::string> icon(std::size_t) const override { return "7"; }
  [[nodiscard]] int column_count(std::size_t) const override { return 2; }

 private:
  bool* gone_;
};

struct Staged {
  Window window{"Form"};
  ListView list{window, "view1", {"File Name", "Size", "Date"}};
};

Texts texts(const ListView& list, int column = 0) {
  Texts out;
  for (int row = 1; row <= list.count(); ++row) out.push_back(list.sub_item(row, column));
  return out;
}

void add_all(ListView& list, const Texts& rows) {
  for (const std::string& text : rows) list.add(text);
}

// Adds rows 0 to `count` - 1 of a new source.
void add_files(ListView& list, std::size_t count, bool* gone = nullptr) {
  const auto source = list.add_source(std::make_shared<CountedFiles>(gone));
  for (std::size_t i = 0; i < count; ++i) list.add_from(source, i);
}

// --- Columns.

TEST(ListView, KeepsItsColumnsAndTheirWidths) {
  Staged staged;
  staged.list.set_column(2, "Bytes");
  staged.list.set_column_width(1, 5000);
  EXPECT_EQ(staged.list.columns(), (Texts{"File Name", "Bytes", "Date"}));
  EXPECT_EQ(staged.list.column_width(1), 5000);
  EXPECT_EQ(staged.list.column_width(2), 0);
}

// --- Rows of its own.

TEST(ListView, NumbersItsRowsFromOne) {
  Staged staged;
  EXPECT_EQ(staged.list.add("a"), 1);
  EXPECT_EQ(staged.list.add("b"), 2);
  EXPECT_EQ(staged.list.count(), 2);
  EXPECT_EQ(texts(staged.list), (Texts{"a", "b"}));
}

TEST(ListView, HoldsSubItemsAndAnIconForEachRow) {
  Staged staged;
  staged.list.add("a");
  staged.list.add("b");
  staged.list.set_sub_item(1, 1, "3.41 MB");
  staged.list.set_sub_item(1, 3, "12");
  staged.list.set_icon(1, "4");

  EXPECT_EQ(staged.list.sub_item(1, 1), "3.41 MB");
  EXPECT_EQ(staged.list.sub_item(1, 2), "");
  EXPECT_EQ(staged.list.sub_item(1, 3), "12");
  EXPECT_EQ(staged.list.sub_item_number(1, 3), 12);
  EXPECT_EQ(staged.list.icon(1), "4");
  EXPECT_EQ(staged.list.sub_item(2, 1), "");
  EXPECT_EQ(staged.list.icon(2), std::nullopt);
}

TEST(ListView, SubItemsBeyondTheLastAreEmpty) {
  Staged staged;
  staged.list.add("a");
  staged.list.set_sub_item(1, 2, "x");
  EXPECT_EQ(staged.list.sub_item_count(1), 2);
  EXPECT_EQ(staged.list.sub_item(1, 9), "");
  EXPECT_EQ(staged.list.sub_item_number(1, 9), 0);
}

// --- Rows of a source.

TEST(ListView, ShowsRowsOfASource) {
  Staged staged;
  staged.list.add("own");
  add_files(staged.list, 2);

  EXPECT_EQ(texts(staged.list), (Texts{"own", "file 0", "file 1"}));
  EXPECT_EQ(staged.list.sub_item(3, 1), "1 KB");
  EXPECT_EQ(staged.list.sub_item_number(3, 1), 1);
  EXPECT_EQ(staged.list.icon(3), "7");
  EXPECT_EQ(staged.list.sub_item_count(3), 1);
}

TEST(ListView, AWrittenRowOfASourceKeepsItsOtherTexts) {
  Staged staged;
  add_files(staged.list, 2);

  staged.list.set_sub_item(2, 2, "new");

  EXPECT_EQ(staged.list.text(2), "file 1");
  EXPECT_EQ(staged.list.sub_item(2, 1), "1 KB");
  EXPECT_EQ(staged.list.sub_item(2, 2), "new");
  EXPECT_EQ(staged.list.icon(2), "7");
  EXPECT_EQ(staged.list.sub_item(1, 2), "");
}

TEST(ListView, LetsGoOfItsSourcesWhenItIsCleared) {
  Staged staged;
  bool gone = false;
  add_files(staged.list, 2, &gone);
  EXPECT_FALSE(gone);

  staged.list.clear();

  EXPECT_TRUE(gone);
  EXPECT_EQ(staged.list.count(), 0);
}

TEST(ListView, RaisesItsGenerationWhenItHasLetGo) {
  Staged staged;
  const auto before = staged.list.generation();
  add_files(staged.list, 1);
  EXPECT_EQ(staged.list.generation(), before);
  staged.list.clear();
  EXPECT_GT(staged.list.generation(), before);
}

TEST(ListView, LetsGoWhenTheLastRowIsRemoved) {
  Staged staged;
  bool gone = false;
  add_files(staged.list, 2, &gone);
  const auto before = staged.list.generation();

  staged.list.remove(1);
  EXPECT_FALSE(gone);
  staged.list.remove(1);

  EXPECT_TRUE(gone);
  EXPECT_GT(staged.list.generation(), before);
}

TEST(ListView, IsUsableAfterLettingGo) {
  Staged staged;
  add_files(staged.list, 2);
  staged.list.clear();
  staged.list.add("own");
  add_files(staged.list, 1);
  EXPECT_EQ(texts(staged.list), (Texts{"own", "file 0"}));
}

// --- Copies.

TEST(ListView, ACopiedRowHasItsTextsAndIconButNoTick) {
  Staged staged;
  ListView copy(staged.window, "view5", {"File Name", "Size"});
  staged.list.add("a");
  staged.list.set_sub_item(1, 1, "5 B");
  staged.list.set_icon(1, "3");
  staged.list.set_checked(1, true);
  staged.list.set_selected(1, true);

  copy.add_copy(staged.list, 1);

  EXPECT_EQ(copy.text(1), "a");
  EXPECT_EQ(copy.sub_item(1, 1), "5 B");
  EXPECT_EQ(copy.icon(1), "3");
  EXPECT_FALSE(copy.checked(1));
}

TEST(ListView, ACopyKeepsItsTextsWhenTheOriginalIsWrittenTo) {
  Staged staged;
  ListView copy(staged.window, "view5", {"File Name", "Size"});
  staged.list.add("own");
  add_files(staged.list, 1);
  copy.add_copy(staged.list, 1);
  copy.add_copy(staged.list, 2);

  staged.list.set_text(1, "changed");
  staged.list.set_sub_item(2, 1, "changed");
  staged.list.set_icon(1, "9");

  EXPECT_EQ(texts(copy), (Texts{"own", "file 0"}));
  EXPECT_EQ(copy.sub_item(2, 1), "0 KB");
  EXPECT_EQ(copy.icon(1), std::nullopt);
}

TEST(ListView, AnOriginalKeepsItsTextsWhenTheCopyIsWrittenTo) {
  Staged staged;
  ListView copy(staged.window, "view5", {"File Name", "Size"});
  staged.list.add("own");
  add_files(staged.list, 1);
  copy.add_copy(staged.list, 1);
  copy.add_copy(staged.list, 2);

  copy.set_text(1, "changed");
  copy.set_text(2, "changed");

  EXPECT_EQ(texts(staged.list), (Texts{"own", "file 0"}));
}

TEST(ListView, ACopyOutlivesTheOriginalsRows) {
  Staged staged;
  ListView copy(staged.window, "view5", {"File Name", "Size"});
  staged.list.add("own");
  bool gone = false;
  add_files(staged.list, 1, &gone);
  copy.add_copy(staged.list, 1);
  copy.add_copy(staged.list, 2);

  staged.list.clear();
  staged.list.add("other");

  EXPECT_FALSE(gone);
  EXPECT_EQ(texts(copy), (Texts{"own", "file 0"}));
  copy.clear();
  EXPECT_TRUE(gone);
}

// --- Removing.

TEST(ListView, RemoveClosesTheGap) {
  Staged staged;
  add_all(staged.list, {"a", "b", "c", "d"});
  staged.list.set_checked(3, true);

  staged.list.remove(2);
  staged.list.remove(1);

  EXPECT_EQ(texts(staged.list), (Texts{"c", "d"}));
  EXPECT_TRUE(staged.list.checked(1));
}

TEST(ListView, RemoveIfTakesTheDoomedRowsAndKeepsTheOrder) {
  Staged staged;
  for (const char* category : {"2", "12", "5", "12", "11"}) {
    const int row = staged.list.add(std::string("in ") + category);
    staged.list.set_sub_item(row, 3, category);
  }
  staged.list.set_checked(3, true);

  staged.list.remove_if([&](int row) { return staged.list.sub_item_number(row, 3) == 12; });

  EXPECT_EQ(texts(staged.list), (Texts{"in 2", "in 5", "in 11"}));
  EXPECT_TRUE(staged.list.checked(2));
}

TEST(ListView, RemoveIfMayTakeNothingOrEverything) {
  Staged staged;
  bool gone = false;
  add_files(staged.list, 3, &gone);
  staged.list.remove_if([](int) { return false; });
  EXPECT_EQ(staged.list.count(), 3);
  staged.list.remove_if([](int) { return true; });
  EXPECT_EQ(staged.list.count(), 0);
  EXPECT_TRUE(gone);
}

// --- Ticks and selection.

TEST(ListView, TicksAndSelectionAreTheRowsOwn) {
  Staged staged;
  add_all(staged.list, {"a", "b", "c"});
  staged.list.set_checked(2, true);
  staged.list.set_selected(3, true);
  EXPECT_TRUE(staged.list.checked(2));
  EXPECT_FALSE(staged.list.checked(1) || staged.list.checked(3));
  EXPECT_TRUE(staged.list.selected(3));
  EXPECT_FALSE(staged.list.selected(1) || staged.list.selected(2));
}

TEST(ListView, TicksAllRowsAtOnce) {
  Staged staged;
  add_all(staged.list, {"a", "b"});
  staged.list.check_all(true);
  EXPECT_TRUE(staged.list.checked(1) && staged.list.checked(2));
  staged.list.check_all(false);
  EXPECT_FALSE(staged.list.checked(1) || staged.list.checked(2));
}

TEST(ListView, AWrittenRowKeepsItsTick) {
  Staged staged;
  add_files(staged.list, 1);
  staged.list.set_checked(1, true);
  staged.list.set_sub_item(1, 1, "new");
  EXPECT_TRUE(staged.list.checked(1));
}

// --- Sorting.

TEST(ListView, SortsByTheTextOfAColumnWithoutRegardToCase) {
  Staged staged;
  add_all(staged.list, {"b", "C", "a", "10", "9"});
  staged.list.set_sorted(true);
  staged.list.set_sort(0, false);
  EXPECT_EQ(texts(staged.list), (Texts{"10", "9", "a", "b", "C"}));
}

TEST(ListView, SortsDownwardsByAnotherColumn) {
  Staged staged;
  for (const char* size : {"5 B", "3 B", "4 B"}) {
    staged.list.set_sub_item(staged.list.add("file"), 1, size);
  }
  staged.list.set_sorted(true);
  staged.list.set_sort(1, true);
  EXPECT_EQ(texts(staged.list, 1), (Texts{"5 B", "4 B", "3 B"}));
  EXPECT_EQ(staged.list.sort_key(), 1);
  EXPECT_TRUE(staged.list.descending());
}

TEST(ListView, RowsTakeTheirTicksAlongWhenSorted) {
  Staged staged;
  add_all(staged.list, {"b", "a"});
  staged.list.set_checked(1, true);
  staged.list.set_sorted(true);
  staged.list.set_sort(0, false);
  EXPECT_FALSE(staged.list.checked(1));
  EXPECT_TRUE(staged.list.checked(2));
}

TEST(ListView, KeepsTheOrderOfAddingWhileItIsNotSorted) {
  Staged staged;
  add_all(staged.list, {"b", "a"});
  staged.list.set_sort(0, false);
  EXPECT_FALSE(staged.list.sorted());
  EXPECT_EQ(texts(staged.list), (Texts{"b", "a"}));
}

// --- Acts of the user.

TEST(ListView, TellsTheActsOfTheUser) {
  Staged staged;
  add_all(staged.list, {"a", "b"});
  Texts acts;
  staged.list.on_item_click = [&](int row) { acts.push_back("click " + std::to_string(row)); };
  staged.list.on_item_check = [&](int row) { acts.push_back("check " + std::to_string(row)); };
  staged.list.on_double_click = [&] { acts.push_back("open"); };
  staged.list.on_column_click = [&](int column) {
    acts.push_back("column " + std::to_string(column));
  };

  staged.list.click_row(2);
  staged.list.tick_row(1, true);
  staged.list.double_click(2);
  staged.list.click_column(3);

  EXPECT_EQ(acts, (Texts{"click 2", "check 1", "open", "column 3"}));
  EXPECT_TRUE(staged.list.checked(1));
}

TEST(ListView, AClickLeavesOneRowSelected) {
  Staged staged;
  add_all(staged.list, {"a", "b"});
  staged.list.click_row(1);
  staged.list.click_row(2);
  EXPECT_FALSE(staged.list.selected(1));
  EXPECT_TRUE(staged.list.selected(2));
}

TEST(ListView, ADoubleClickBesideTheRowsIsToldToo) {
  Staged staged;
  int opened = 0;
  staged.list.on_double_click = [&] { ++opened; };
  staged.list.double_click(0);
  EXPECT_EQ(opened, 1);
}

TEST(ListView, ActsOnADisabledListOrAMissingRowDoNothing) {
  Staged staged;
  add_all(staged.list, {"a"});
  int told = 0;
  staged.list.on_item_click = [&](int) { ++told; };
  staged.list.on_item_check = [&](int) { ++told; };
  staged.list.on_double_click = [&] { ++told; };
  staged.list.on_column_click = [&](int) { ++told; };

  for (const int missing : {-1, 0, 2}) {
    staged.list.click_row(missing);
    staged.list.tick_row(missing, true);
  }
  staged.list.set_enabled(false);
  staged.list.click_row(1);
  staged.list.tick_row(1, true);
  staged.list.double_click(1);
  staged.list.click_column(1);

  EXPECT_EQ(told, 0);
  EXPECT_FALSE(staged.list.checked(1));
}

TEST(ListView, ATickByTheProgramIsNoAct) {
  Staged staged;
  add_all(staged.list, {"a"});
  int told = 0;
  staged.list.on_item_check = [&](int) { ++told; };
  staged.list.set_checked(1, true);
  EXPECT_EQ(told, 0);
}

TEST(ListView, TheRightButtonOpensTheHandlersMenu) {
  Staged staged;
  EXPECT_EQ(staged.list.right_click(), nullptr);
  Menu menu(staged.window, "b", "remove", {});
  staged.list.on_right_click = [&] { return &menu; };
  EXPECT_EQ(staged.list.right_click(), &menu);
}

TEST(ListView, ItsCountIsReadByName) {
  Staged staged;
  add_files(staged.list, 3);
  EXPECT_EQ(staged.list.property("Count"), PropertyValue(std::int64_t{3}));
}

TEST(ListView, TellsItsObserversOfRowsAndTicks) {
  Staged staged;
  ChangeList seen;
  staged.list.observe(seen);
  staged.list.add("a");
  staged.list.set_checked(1, true);
  EXPECT_EQ(seen.changes, (std::vector{Change::kItems, Change::kItemState}));
}

}  // namespace
}  // namespace quillvane
