#include "forms/list_box.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/window.h"
#include "tests/support/change_list.h"

namespace quillvane {
namespace {

TEST(ListBox, CountsItsItemsFromZero) {
  Window window("Form");
  ListBox list(window, "Drive1");
  list.add("c:");
  list.add("d:");
  EXPECT_EQ(list.count(), 2);
  EXPECT_EQ(list.item(0), "c:");
  EXPECT_EQ(list.item(1), "d:");
  EXPECT_EQ(list.items(), (std::vector<std::string>{"c:", "d:"}));
}

TEST(ListBox, AMissingItemIsEmpty) {
  Window window("Form");
  ListBox list(window, "Drive1");
  list.add("c:");
  EXPECT_EQ(list.item(-1), "");
  EXPECT_EQ(list.item(1), "");
}

TEST(ListBox, ClearTakesAllItems) {
  Window window("Form");
  ListBox list(window, "List1");
  list.add("a");
  list.clear();
  EXPECT_EQ(list.count(), 0);
  EXPECT_EQ(list.property("Count"), PropertyValue(std::int64_t{0}));
}

TEST(ListBox, GivesUpOneItemAndNoneThatIsNotThere) {
  Window window("Form");
  ListBox list(window, "List1");
  for (const char* item : {"a", "b", "c"}) list.add(item);
  for (const int item : {-1, 3, 1}) list.remove(item);
  EXPECT_EQ(list.items(), (std::vector<std::string>{"a", "c"}));
}

TEST(ListBox, TellsThatItsItemsChanged) {
  Window window("Form");
  ListBox list(window, "List1");
  ChangeList seen;
  list.observe(seen);
  list.add("a");
  list.clear();
  EXPECT_EQ(seen.changes, (std::vector{Change::kItems, Change::kItems}));
}

}  // namespace
}  // namespace quillvane
