#include "forms/text_box.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/window.h"
#include "tests/support/change_list.h"

namespace quillvane {
namespace {

TEST(TextBox, RunsChangeInsideTheAssignment) {
  Window window("Form");
  TextBox box(window, "Text9");
  std::vector<std::string> steps;
  box.on_change = [&] { steps.push_back("change to " + box.text()); };

  box.set_text("1");
  steps.push_back("behind the assignment");

  EXPECT_EQ(steps, (std::vector<std::string>{"change to 1", "behind the assignment"}));
}

TEST(TextBox, RunsChangeOnlyWhenTheTextDiffers) {
  Window window("Form");
  TextBox box(window, "Text9");
  int changes = 0;
  box.on_change = [&] { ++changes; };

  box.set_text("");
  EXPECT_EQ(changes, 0);
  box.set_text("1");
  box.set_text("1");
  EXPECT_EQ(changes, 1);
  box.set_text("");
  box.set_text("1");
  EXPECT_EQ(changes, 3);
}

TEST(TextBox, AHandlerThatEmptiesTheBoxRunsOnceMore) {
  Window window("Form");
  TextBox box(window, "Text14");
  std::vector<std::string> seen;
  box.on_change = [&] {
    seen.push_back(box.text());
    if (!box.text().empty()) box.set_text("");
  };

  box.set_text("i");

  EXPECT_EQ(seen, (std::vector<std::string>{"i", ""}));
  EXPECT_EQ(box.text(), "");
}

TEST(TextBox, TellsItsObserversBeforeTheHandlerRuns) {
  Window window("Form");
  TextBox box(window, "Text13");
  ChangeList seen;
  box.observe(seen);
  std::size_t told = 0;
  box.on_change = [&] { told = seen.changes.size(); };

  box.set_text("C:\\a.tmp");

  EXPECT_EQ(seen.changes, (std::vector{Change::kText}));
  EXPECT_EQ(told, 1U);
}

TEST(TextBox, IsReadAsText) {
  Window window("Form");
  TextBox box(window, "Text13");
  box.set_text("C:\\a.tmp");
  EXPECT_EQ(box.property("Text"), PropertyValue("C:\\a.tmp"));
  EXPECT_EQ(box.property("Enabled"), PropertyValue(true));
  EXPECT_EQ(box.property("Caption"), std::nullopt);
}

}  // namespace
}  // namespace quillvane
