// An ignore list that is there and cannot be read: nothing is removed, by whatever way.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>

#include "dialogs/ignore_dialog.h"
#include "tests/support/scan_fixture.h"
#include "tests/support/unreadable_file.h"

namespace quillvane {
namespace {

const std::string kList = kProgramFolder + "\\ignore.tdw";
const std::string kMessage =
    kList + ": access is denied. Nothing is removed while the ignore list cannot be read.";

// Junk in every category, and an ignore list that keeps one folder of it and cannot be read.
struct Unreadable : JunkEverywhere {
  Unreadable() { add_program_file("ignore.tdw", "C:\\Windows\\Temp\r\n"); }

  Form7& start_it(std::string_view command_line = {}) {
    program.emplace(machine.platform().with({.files = &files}));
    program->start(command_line);
    return program->main_window();
  }
  // Opens the dialog of the list, and does this in it.
  void in_dialog(const std::function<void(Form1&)>& act) {
    bool was_open = false;
    machine.loop().set_user([&](const std::function<bool()>&) {
      was_open = true;
      act(*static_cast<Form1*>(program->find_window("Form1")));
    });
    program->main_window().cmd_ignore.click();
    machine.loop().set_user(nullptr);
    EXPECT_TRUE(was_open);
  }
  [[nodiscard]] Texts left() {
    Texts paths;
    for (const std::string& path : junk) {
      if (machine.has_file(path)) paths.push_back(path);
    }
    return paths;
  }
  [[nodiscard]] Texts messages() {
    Texts texts;
    for (const ShownBox& box : machine.dialogs().take_boxes()) texts.push_back(box.text);
    return texts;
  }

  UnreadableFile files{machine.platform().files, kList, ReadFailure::kDenied};
};

TEST(UnreadableIgnoreList, IsToldOnceWhenTheWindowIsShown) {
  Unreadable stage;
  Form7& form = stage.start_it();
  const auto boxes = stage.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, kMessage);
  EXPECT_EQ(boxes[0].title, "Quillvane Disk Cleaner");
  EXPECT_EQ(boxes[0].style, 48U);

  form.cmd_start.click();
  form.Text14.set_text("i");
  form.cmd_start.click();
  EXPECT_EQ(stage.messages(), Texts{});
}

TEST(UnreadableIgnoreList, LocksEveryCommandThatRemoves) {
  Unreadable stage;
  Form7& form = stage.start_it();
  form.cmd_start.click();
  EXPECT_EQ(form.view1.count(), 10);
  static_cast<void>(stage.messages());

  const auto try_all = [&] {
    for (Button* button : {&form.cmd_clean, &form.orvbutton2}) button->click();
    form.Toolbar1.click_button(6);
    for (const int node : {1, 2, 12, 24}) {
      form.Tv1.on_node_click(node);
      for (MenuEntry* entry : {&form.b1, &form.b2, &form.stc}) entry->click();
    }
    run_cleaning(form, form);
  };
  try_all();
  form.Toolbar1.click_button(5);  // a scan enables the buttons behind it
  try_all();
  EXPECT_EQ(stage.left(), stage.junk);
  EXPECT_EQ(stage.messages(), Texts{});  // not even a question
}

TEST(UnreadableIgnoreList, EndsTheSuitesRunWithoutCleaningAndWithoutABox) {
  for (const char* line : {"w", "w2", "w3", "w-c", "w3-c3", "w4-c4"}) {
    Unreadable stage;
    stage.start_it(line);
    EXPECT_EQ(stage.left(), stage.junk) << line;
    EXPECT_EQ(stage.messages(), Texts{}) << line;
    EXPECT_TRUE(stage.program->ended()) << line;
    EXPECT_EQ(stage.program_file("junst.txt"), "11|110\r\n") << line;
    EXPECT_EQ(stage.machine.registry_text(Hive::kLocalMachine,
                                          "software\\Quillvane\\Tidewrack Deluxe\\real", "dc"),
              "1")
        << line;
  }
}

// What was listed meanwhile is dropped: a protected file may be among it.
TEST(UnreadableIgnoreList, UnlocksWhenItIsReadAgain) {
  Unreadable stage;
  Form7& form = stage.start_it();
  form.cmd_start.click();
  stage.files.why = std::nullopt;

  form.Text14.set_text("i");

  EXPECT_EQ(form.ignorelist.text(), "c:\\windows\\temp|");
  EXPECT_EQ(rows(form.view1), Texts{});
  EXPECT_EQ(rows(form.view5), Texts{});
  form.cmd_start.click();
  stage.machine.dialogs().answer(Answer::kYes);
  form.cmd_clean.click();
  EXPECT_EQ(stage.left(), Texts{"C:\\Windows\\Temp\\a.tmp"});
}

TEST(UnreadableIgnoreList, IsReadAgainWhenItsDialogIsClosed) {
  Unreadable stage;
  Form7& form = stage.start_it();
  stage.files.why = std::nullopt;
  stage.in_dialog([](Form1& dialog) { dialog.Command1.click(); });
  EXPECT_EQ(form.ignorelist.text(), "c:\\windows\\temp|");
  EXPECT_TRUE(form.orvbutton2.enabled());
}

TEST(UnreadableIgnoreList, LocksWhenTheReloadFails) {
  Unreadable stage;
  stage.files.why = std::nullopt;
  Form7& form = stage.start_it();
  form.cmd_start.click();
  stage.files.why = ReadFailure::kDenied;

  form.Text14.set_text("i");

  EXPECT_EQ(stage.messages(), Texts{kMessage});
  form.cmd_clean.click();
  form.Toolbar1.click_button(6);
  EXPECT_EQ(stage.left(), stage.junk);
  EXPECT_EQ(form.Text14.text(), "");
}

TEST(UnreadableIgnoreList, IsNotSavedOverByItsDialog) {
  Unreadable stage;
  stage.start_it();
  static_cast<void>(stage.messages());
  stage.in_dialog([&](Form1& dialog) {
    stage.machine.dialogs().answer_path("C:\\New");
    dialog.Command3.click();
    EXPECT_EQ(rows(dialog.view1), Texts{"C:\\New"});
    EXPECT_FALSE(dialog.Command2.enabled());
    dialog.Command2.click();
    dialog.Command1.click();
  });
  EXPECT_EQ(stage.program_file("ignore.tdw"), "C:\\Windows\\Temp\r\n");
  EXPECT_EQ(stage.messages().front(),
            kList + ": access is denied. The list is not changed while it cannot be read.");
}

// A missing list is an empty one, as it always was.
TEST(UnreadableIgnoreList, IsNoMissingOne) {
  JunkEverywhere stage;
  Form7& form = stage.start();
  form.cmd_start.click();
  stage.machine.dialogs().answer(Answer::kYes);
  form.cmd_clean.click();
  EXPECT_FALSE(stage.machine.has_file(stage.junk.front()));
}

}  // namespace
}  // namespace quillvane
