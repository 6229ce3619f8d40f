#include "forms/buttons.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "forms/window.h"
#include "tests/support/change_list.h"

namespace quillvane {
namespace {

TEST(Button, ClickRunsItsHandler) {
  Window window("Form");
  Button button(window, "cmd_start");
  int clicks = 0;
  button.on_click = [&] { ++clicks; };
  button.click();
  button.click();
  EXPECT_EQ(clicks, 2);
}

TEST(Button, DoesNothingWhileDisabled) {
  Window window("Form");
  Button button(window, "cmd_start");
  int clicks = 0;
  button.on_click = [&] { ++clicks; };

  button.set_enabled(false);
  button.click();
  EXPECT_EQ(clicks, 0);

  button.set_enabled(true);
  button.click();
  EXPECT_EQ(clicks, 1);
}

TEST(Button, CanBeClickedWhileHidden) {
  Window window("Form");
  Button button(window, "orvbutton2");
  int clicks = 0;
  button.on_click = [&] { ++clicks; };
  button.hide();
  button.click();
  EXPECT_EQ(clicks, 1);
}

TEST(Button, AClickWithoutAHandlerIsHarmless) {
  Window window("Form");
  Button button(window, "cmd_start");
  button.click();
  EXPECT_TRUE(button.enabled());
}

TEST(Button, TellsNewCaptionsAndColours) {
  Window window("Form");
  Button button(window, "cmd_start");
  ChangeList seen;
  button.observe(seen);

  button.set_caption("Start");
  button.set_caption("Start");
  button.set_back_over(128);

  EXPECT_EQ(seen.changes, (std::vector{Change::kCaption, Change::kColor}));
  EXPECT_EQ(button.back_over(), 128U);
}

TEST(Label, ItsTextIsItsCaption) {
  Window window("Form");
  Label label(window, "Label11");
  label.set_caption("Junk files found");
  EXPECT_EQ(label.property("Caption"), PropertyValue("Junk files found"));
  EXPECT_EQ(label.property("text"), PropertyValue("Junk files found"));
}

TEST(CheckBox, AClickTurnsTheTickAndThenRunsTheHandler) {
  Window window("Form");
  CheckBox box(window, "Check1");
  std::vector<bool> seen;
  box.on_click = [&] { seen.push_back(box.checked()); };

  box.click();
  box.click();

  EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST(CheckBox, SettingTheTickRunsTheHandlerOnlyWhenItChanges) {
  Window window("Form");
  CheckBox box(window, "Check1");
  int clicks = 0;
  box.on_click = [&] { ++clicks; };
  box.set_checked(false);
  EXPECT_EQ(clicks, 0);
  box.set_checked(true);
  box.set_checked(true);
  EXPECT_EQ(clicks, 1);
}

TEST(CheckBox, KeepsItsTickWhileDisabled) {
  Window window("Form");
  CheckBox box(window, "Check1");
  box.set_enabled(false);
  box.click();
  EXPECT_FALSE(box.checked());
}

TEST(CheckBox, ItsValueIsOneOrZero) {
  Window window("Form");
  CheckBox box(window, "Check1");
  EXPECT_EQ(box.property("Value"), PropertyValue(std::int64_t{0}));
  box.set_checked(true);
  EXPECT_EQ(box.property("value"), PropertyValue(std::int64_t{1}));
}

// Three options of which one is chosen.
struct Options {
  Options() {
    for (OptionButton* option : {&first, &second, &third}) {
      option->set_group({&first, &second, &third});
      option->on_click = [this, option] { clicked.push_back(option->name()); };
    }
  }

  Window window{"Form"};
  OptionButton first{window, "Option1"};
  OptionButton second{window, "Option2"};
  OptionButton third{window, "Option3"};
  std::vector<std::string> clicked;
};

TEST(OptionButton, TakesTheChoiceFromTheOthersOfItsGroup) {
  Options options;
  options.first.click();
  options.third.click();
  EXPECT_FALSE(options.first.chosen());
  EXPECT_FALSE(options.second.chosen());
  EXPECT_TRUE(options.third.chosen());
  EXPECT_EQ(options.clicked, (std::vector<std::string>{"Option1", "Option3"}));
}

TEST(OptionButton, KeepsTheChoiceAsItIsWhileDisabled) {
  Options options;
  options.first.choose();
  options.second.set_enabled(false);
  options.second.click();
  EXPECT_TRUE(options.first.chosen());
  EXPECT_FALSE(options.second.chosen());
}

TEST(OptionButton, ItsValueTellsWhetherItIsChosen) {
  Options options;
  options.second.choose();
  EXPECT_EQ(options.second.property("Value"), PropertyValue(true));
  EXPECT_EQ(options.first.property("Value"), PropertyValue(false));
}

TEST(Menu, HoldsItsEntriesInOrder) {
  Window window("Form");
  MenuEntry scan(window, "scf", "Scan");
  MenuEntry clean(window, "stc", "Start Cleaning");
  const Menu menu(window, "sc", "scan", {&scan, &clean});
  ASSERT_EQ(menu.entries().size(), 2U);
  EXPECT_EQ(menu.entries()[0]->caption(), "Scan");
  EXPECT_EQ(menu.entries()[1]->name(), "stc");
}

TEST(Menu, HasACaptionThatIsReadByName) {
  Window window("Form");
  const Menu menu(window, "b", "remove", {});
  EXPECT_EQ(menu.property("Caption"), PropertyValue("remove"));
  EXPECT_EQ(menu.property("Enabled"), PropertyValue(true));
}

TEST(Clickable, TheProgramsOwnClickTakesNoNoticeOfADisabledControl) {
  Window window("Form");
  Button button(window, "Command1");
  button.raise_click();  // nothing stands behind it yet
  int clicks = 0;
  button.on_click = [&] { ++clicks; };
  button.set_enabled(false);
  button.raise_click();
  EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace quillvane
