#include "forms/toolbar.h"

#include <gtest/gtest.h>

#include <vector>

#include "forms/window.h"
#include "tests/support/change_list.h"

namespace quillvane {
namespace {

// Two buttons with a separator between them.
struct Staged {
  Staged() {
    bar.set_buttons({{.image = 1}, {.separator = true}, {.image = 2}});
    bar.on_button_click = [this](int number) { clicked.push_back(number); };
  }

  Window window{"Form"};
  Toolbar bar{window, "Toolbar1"};
  std::vector<int> clicked;
};

TEST(Toolbar, NumbersSeparatorsToo) {
  const Staged staged;
  EXPECT_EQ(staged.bar.count(), 3);
  EXPECT_EQ(staged.bar.button(1)->image, 1);
  EXPECT_TRUE(staged.bar.button(2)->separator);
  EXPECT_EQ(staged.bar.button(3)->image, 2);
}

TEST(Toolbar, HasNoButtonOutsideOfItsNumbers) {
  const Staged staged;
  for (const int number : {-1, 0, 4}) EXPECT_EQ(staged.bar.button(number), nullptr) << number;
}

TEST(Toolbar, AClickTellsTheNumber) {
  Staged staged;
  staged.bar.click_button(3);
  staged.bar.click_button(1);
  EXPECT_EQ(staged.clicked, (std::vector<int>{3, 1}));
}

TEST(Toolbar, ClicksElsewhereDoNothing) {
  Staged staged;
  staged.bar.set_button_enabled(1, false);
  for (const int number : {-1, 0, 1, 2, 4}) staged.bar.click_button(number);
  EXPECT_EQ(staged.clicked, std::vector<int>{});
}

TEST(Toolbar, AHiddenButtonCanBeClicked) {
  Staged staged;
  staged.bar.set_button_visible(3, false);
  staged.bar.click_button(3);
  EXPECT_EQ(staged.clicked, std::vector<int>{3});
}

TEST(Toolbar, ADisabledBarTakesNoClick) {
  Staged staged;
  staged.bar.set_enabled(false);
  staged.bar.click_button(1);
  EXPECT_EQ(staged.clicked, std::vector<int>{});
}

TEST(Toolbar, SettersPassOverAMissingButton) {
  Staged staged;
  staged.bar.set_button_enabled(0, false);
  staged.bar.set_button_visible(4, false);
  EXPECT_EQ(staged.bar.property("Count"), PropertyValue(std::int64_t{3}));
}

TEST(Toolbar, TellsItsObserversWhenAButtonChanges) {
  Staged staged;
  ChangeList seen;
  staged.bar.observe(seen);
  staged.bar.set_button_enabled(1, false);
  staged.bar.set_button_visible(1, false);
  EXPECT_EQ(seen.changes.size(), 2U);
}

}  // namespace
}  // namespace quillvane
