// Which command opens which window, and what the pages' buttons and menus run.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

// The program with a user who closes each window that waits for him, and notes its name.
struct Attended : ScanFixture {
  Attended() {
    start();
    machine.loop().set_user([this](const std::function<bool()>& done) {
      for (const char* name : {"Form1", "Form2", "Form5", "frmabout"}) {
        if (Window* window = program->find_window(name)) {
          opened.emplace_back(name);
          EXPECT_TRUE(window->visible()) << name;
          window->close();
        }
      }
      EXPECT_TRUE(done());
    });
  }
  Form7& form() { return program->main_window(); }

  Texts opened;
};

TEST(WindowCommands, OpenTheSmallWindows) {
  Attended attended;
  Form7& form = attended.form();

  form.cmd_custom.click();
  form.cmd_ignore.click();
  form.Toolbar1.click_button(12);
  form.Toolbar1.click_button(13);
  form.chameleonButton18.click();

  EXPECT_EQ(attended.opened, (Texts{"Form2", "Form1", "Form2", "Form1", "frmabout"}));
  EXPECT_FALSE(attended.program->ended());
}

TEST(WindowCommands, TheAboutWindowSetsThePage) {
  Attended attended;
  attended.form().cmd_ignore.click();
  EXPECT_EQ(attended.program->session.page_value, 0);
  attended.form().chameleonButton18.click();
  EXPECT_EQ(attended.program->session.page_value, 7);
}

TEST(WindowCommands, TheWayToTheDrivesBringsTheirPageToTheFront) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.orvbutton8.click();
  EXPECT_EQ(form.wizardstep, 1);

  form.chameleonButton6.click();

  EXPECT_EQ(form.wizardstep, 0);
  EXPECT_TRUE(form.Frame2.visible());
  for (const Frame* other : {&form.Frame4, &form.Frame6, &form.Frame8, &form.Frame80}) {
    EXPECT_FALSE(other->visible()) << other->name();
  }
}

struct PageCase {
  int tool;
  Button Form7::*page;
};

TEST(WindowCommands, ToolsOfThePagesRunTheirButtonsBehindTheNewStates) {
  for (const auto& [tool, page] :
       {PageCase{1, &Form7::chameleonButton6}, PageCase{2, &Form7::orvbutton8},
        PageCase{3, &Form7::chameleonButton1}}) {
    ScanFixture fixture;
    Form7& form = fixture.start();
    for (const int number : {6, 9, 10}) form.Toolbar1.set_button_enabled(number, true);
    form.Toolbar1.set_button_enabled(5, false);
    std::vector<bool> seen;
    (form.*page).on_click = [&] {
      for (const int number : {5, 6, 9, 10, 12, 13}) {
        seen.push_back(form.Toolbar1.button(number)->enabled);
      }
    };
    (form.*page).set_enabled(false);  // the tool bar runs it all the same

    form.Toolbar1.click_button(tool);

    EXPECT_EQ(seen, (std::vector<bool>{true, false, false, false, false, true})) << tool;
  }
}

struct EntryCase {
  MenuEntry Form7::*entry;
  Button Form7::*button;
};

TEST(WindowCommands, EntriesOfTheFileTypesRunTheirButtons) {
  for (const auto& [entry, button] :
       {EntryCase{&Form7::a1, &Form7::command111}, EntryCase{&Form7::a2, &Form7::command811},
        EntryCase{&Form7::a3, &Form7::command911}, EntryCase{&Form7::a5, &Form7::orvbutton611},
        EntryCase{&Form7::a6, &Form7::orvbutton711}}) {
    ScanFixture fixture;
    Form7& form = fixture.start();
    int runs = 0;
    (form.*button).on_click = [&] { ++runs; };
    (form.*entry).click();
    EXPECT_EQ(runs, 1) << (form.*entry).name();
  }
}

TEST(WindowCommands, TheMenuOfFileTypesHasFiveEntries) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  EXPECT_EQ(form.a.entries(),
            (std::vector<MenuEntry*>{
                &fixture.program->main_window().a1, &fixture.program->main_window().a2,
                &fixture.program->main_window().a3, &fixture.program->main_window().a5,
                &fixture.program->main_window().a6}));
}

TEST(WindowCommands, TheShortcutToolHasItsTip) {
  ScanFixture fixture;
  EXPECT_EQ(fixture.start().chameleonButton2.tool_tip(), "Run shortcut tool");
}

}  // namespace
}  // namespace quillvane
