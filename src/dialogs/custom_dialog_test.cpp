// A list of custom folders that is there and cannot be read: it is not changed, and the user hears
// why.
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "dialogs/custom_dialog.h"
#include "dialogs/custom_entry_dialog.h"
#include "tests/support/scan_fixture.h"
#include "tests/support/unreadable_file.h"

namespace quillvane {
namespace {

const std::string kList = kProgramFolder + "\\custom.tdw";
const std::string kContent = "Mine|C:\\Mine|*.a||0\r\n";
const std::string kMessage =
    kList + ": it cannot be read. The list is not changed while it cannot be read.";

struct Stage : ScanFixture {
  Stage() {
    machine.add_folder("C:\\Mine");
    add_program_file("custom.tdw", kContent);
  }

  // Opens the dialog, and does this in it.
  void in_dialog(const std::function<void(Form2&)>& act) {
    program.emplace(machine.platform().with({.files = &files}));
    program->start("");
    bool was_open = false;
    machine.loop().set_user([&](const std::function<bool()>&) {
      was_open = true;
      auto& dialog = *static_cast<Form2*>(program->find_window("Form2"));
      act(dialog);
      dialog.Command1.click();
    });
    program->main_window().cmd_custom.click();
    machine.loop().set_user(nullptr);
    EXPECT_TRUE(was_open);
  }
  [[nodiscard]] Texts messages() {
    Texts texts;
    for (const ShownBox& box : machine.dialogs().take_boxes()) texts.push_back(box.text);
    return texts;
  }

  UnreadableFile files{machine.platform().files, kList};
};

TEST(UnreadableCustomList, IsNotChangedByItsDialog) {
  Stage stage;
  stage.in_dialog([](Form2& dialog) {
    EXPECT_EQ(dialog.view1.count(), 0);
    EXPECT_FALSE(dialog.Command3.enabled());
    dialog.Text1.set_text("2");
    dialog.Command2.set_enabled(true);
    dialog.Command2.click();
  });
  EXPECT_EQ(stage.program_file("custom.tdw"), kContent);
  EXPECT_EQ(stage.messages(), Texts{kMessage});
}

TEST(UnreadableCustomList, IsShownAndChangedAgainOnceItIsRead) {
  Stage stage;
  stage.in_dialog([&](Form2& dialog) {
    stage.files.why = std::nullopt;
    dialog.Text1.set_text("1");
    EXPECT_EQ(rows(dialog.view1), Texts{"Mine"});
    EXPECT_TRUE(dialog.Command3.enabled());
    dialog.view1.on_item_click(1);
    dialog.Command2.click();
  });
  EXPECT_EQ(stage.program_file("custom.tdw"), "");
}

TEST(UnreadableCustomList, TakesNoNewEntryAndTheWindowStays) {
  Stage stage;
  stage.files.why = std::nullopt;
  stage.in_dialog([&](Form2& dialog) {
    stage.files.why = ReadFailure::kUnreadable;
    Form5 entry(stage.program->session, dialog, stage.program->main_window().Text14);
    entry.Text2.set_text("C:\\Mine");
    stage.machine.dialogs().answer(Answer::kYes);
    entry.Command2.click();
    EXPECT_FALSE(entry.unloaded());
  });
  EXPECT_EQ(stage.program_file("custom.tdw"), kContent);
  EXPECT_EQ(stage.messages(), (Texts{"Are you sure you want to empty this folder ?", kMessage}));
}

}  // namespace
}  // namespace quillvane
