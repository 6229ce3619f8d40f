#include "forms/tabs.h"

#include <gtest/gtest.h>

#include <vector>

#include "forms/window.h"

namespace quillvane {
namespace {

struct Stage {
  Stage() {
    tabs.on_click = [this](int tab) { clicks.push_back(tab); };
  }

  Window window{"W"};
  Tabs tabs{window, "T", {"First", "Second"}};
  std::vector<int> clicks;
};

TEST(Tabs, HaveTheFirstChosen) {
  const Stage stage;
  EXPECT_EQ(stage.tabs.count(), 2);
  EXPECT_EQ(stage.tabs.chosen(), 1);
  EXPECT_EQ(stage.tabs.caption(2), "Second");
  EXPECT_EQ(stage.tabs.caption(3), "");
}

TEST(Tabs, AreClickedAgainAndAgain) {
  Stage stage;
  stage.tabs.click_tab(2);
  stage.tabs.click_tab(2);
  EXPECT_EQ(stage.clicks, (std::vector<int>{2, 2}));
  EXPECT_EQ(stage.tabs.property("Value"), PropertyValue(std::int64_t{2}));
}

TEST(Tabs, AreChosenByTheProgramWithoutAClick) {
  Stage stage;
  stage.tabs.choose(2);
  stage.tabs.choose(0);
  stage.tabs.choose(3);
  EXPECT_EQ(stage.tabs.chosen(), 2);
  EXPECT_TRUE(stage.clicks.empty());
}

TEST(Tabs, AreNotClickedWhileDisabledOrWhereThereIsNone) {
  Stage stage;
  stage.tabs.click_tab(0);
  stage.tabs.click_tab(3);
  stage.tabs.set_enabled(false);
  stage.tabs.click_tab(2);
  EXPECT_EQ(stage.tabs.chosen(), 1);
  EXPECT_TRUE(stage.clicks.empty());
}

}  // namespace
}  // namespace quillvane
