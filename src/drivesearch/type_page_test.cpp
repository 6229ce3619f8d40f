// The page of the file types: what it shows, what its commands change and write.
#include "drivesearch/type_page.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>

#include "dialogs/type_dialog.h"
#include "tests/support/change_list.h"
#include "tests/support/scan_fixture.h"
#include "tests/support/unreadable_file.h"

namespace quillvane {
namespace {

// One record: description 50, pattern 50, flag 1.
std::string record(std::string description, std::string pattern, const std::string& flag) {
  description.resize(50, ' ');
  pattern.resize(50, ' ');
  return description + pattern + flag;
}

const std::string kBlank = record("", "", "0");
const std::string kTemporary = record("Temporary files", "*.tmp", "1");
const std::string kOld = record("Old files", "*.old", "0");
const std::string kLogs = record("Log files", "*.log", "1");
const Texts kClosingRow = {"System Temporary Folders"};

struct Types : ScanFixture {
  explicit Types(const std::string& content = kTemporary + kOld + kLogs,
                 std::string_view machine_json = {})
      : ScanFixture(machine_json) {
    add_program_file("tmptype.txt", content);
  }
  Form7& open() {
    Form7& form = start();
    form.orvbutton8.click();
    return form;
  }
  [[nodiscard]] std::string table() { return program_file("tmptype.txt").value_or("missing"); }
  [[nodiscard]] Texts messages() {
    Texts texts;
    for (const ShownBox& box : machine.dialogs().take_boxes()) texts.push_back(box.text);
    return texts;
  }
  // Does this in the window of a type, which `open` brings up, and closes it.
  void in_dialog(const std::function<void()>& open_it, const std::function<void(Form4&)>& act) {
    bool was_open = false;
    machine.loop().set_user([&](const std::function<bool()>&) {
      was_open = true;
      auto& dialog = *static_cast<Form4*>(program->find_window("Form4"));
      act(dialog);
      dialog.close();
    });
    open_it();
    machine.loop().set_user(nullptr);
    EXPECT_TRUE(was_open);
  }
};

TEST(TypePage, ShowsTheTableWithItsTicks) {
  Types types;
  Form7& form = types.open();
  EXPECT_EQ(form.wizardstep, 1);
  EXPECT_TRUE(form.Frame4.visible());
  EXPECT_FALSE(form.Frame80.visible());
  EXPECT_EQ(rows(form.View101), (Texts{"Temporary files", "Old files", "Log files"}));
  EXPECT_EQ(rows(form.View101, 1), (Texts{"*.tmp", "*.old", "*.log"}));
  EXPECT_EQ(ticked(form.View101), (std::vector<int>{1, 3}));
  EXPECT_EQ(form.View1000.count(), 0);  // nothing has changed yet
}

TEST(TypePage, LeavesOutRowsWithoutADescriptionOrAPatternAndDropsThemWithTheNextSave) {
  Types types(record("", "*.x", "1") + kTemporary + record("No pattern", "", "1") +
              record("file with zero size", "", "1"));
  Form7& form = types.open();
  EXPECT_EQ(rows(form.View101), Texts{"Temporary files"});
  form.command511.click();
  EXPECT_EQ(types.table(), kTemporary);
}

TEST(TypePage, TicksAFlagThatIsOneAlone) {
  Types types(record("A", "*.a", "2") + record("B", "*.b", " ") + record("C", "*.c", "1"));
  EXPECT_EQ(ticked(types.open().View101), std::vector<int>{3});
}

TEST(TypePage, WritesEachTickAtOnce) {
  Types types(kTemporary + kOld);
  Form7& form = types.open();
  form.View101.tick_row(2, true);
  EXPECT_EQ(types.table(), kTemporary + record("Old files", "*.old", "1"));
  form.View101.tick_row(1, false);
  EXPECT_EQ(types.table(),
            record("Temporary files", "*.tmp", "0") + record("Old files", "*.old", "1"));
  EXPECT_EQ(rows(form.View1000), (Texts{"Old files", "System Temporary Folders"}));
}

TEST(TypePage, CutsAPatternAt50WhenItIsSaved) {
  Types types;
  Form7& form = types.open();
  form.View101.set_sub_item(1, 1, std::string(51, 'x'));
  form.command511.click();
  EXPECT_EQ(types.table(), record("Temporary files", std::string(50, 'x'), "1") + kOld + kLogs);
}

TEST(TypePage, TicksAllAndNone) {
  Types types(kTemporary + kOld);
  Form7& form = types.open();
  ChangeList seen;
  form.View101.observe(seen);
  form.orvbutton611.click();
  EXPECT_EQ(types.table(), kTemporary + record("Old files", "*.old", "1"));
  EXPECT_EQ(std::count(seen.changes.begin(), seen.changes.end(), Change::kFocus), 1);
  form.orvbutton711.click();
  EXPECT_EQ(types.table(),
            record("Temporary files", "*.tmp", "0") + record("Old files", "*.old", "0"));
  EXPECT_EQ(rows(form.View1000), kClosingRow);
  EXPECT_EQ(std::count(seen.changes.begin(), seen.changes.end(), Change::kFocus), 1);
}

TEST(TypePage, HasAPopUpWhenItHasRows) {
  Types types;
  Form7& form = types.open();
  EXPECT_EQ(form.View101.right_click(), &form.a);
  form.a6.click();
  EXPECT_EQ(ticked(form.View101), std::vector<int>{});
  form.a5.click();
  EXPECT_EQ(ticked(form.View101), (std::vector<int>{1, 2, 3}));
  form.View101.clear();
  EXPECT_EQ(form.View101.right_click(), nullptr);
}

TEST(TypePage, DeletesTheSelectedRowsWhoseRecordsStayBlankUntilTheNextSave) {
  Types types(kTemporary + kOld + record("No pattern", "", "1") + kLogs);
  Form7& form = types.open();
  form.View101.click_row(2);
  form.View101.set_selected(2, true);
  types.machine.dialogs().answer(Answer::kYes);

  form.command911.click();

  EXPECT_EQ(types.table(), kTemporary + kBlank + kLogs);
  EXPECT_EQ(rows(form.View101), (Texts{"Temporary files", "Log files"}));
  EXPECT_EQ(ticked(form.View101), (std::vector<int>{1, 2}));
  EXPECT_EQ(rows(form.View1000),
            (Texts{"Temporary files", "Log files", "System Temporary Folders"}));
  const auto boxes = types.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "Are You Sure To Delete Selected Entries");
  EXPECT_EQ(boxes[0].title, "Delete Entries");
  EXPECT_EQ(boxes[0].style, 36U);

  form.command511.click();
  EXPECT_EQ(types.table(), kTemporary + kLogs);
}

TEST(TypePage, KeepsTheTickOfADeletedRowInItsBlankRecord) {
  Types types(kTemporary);
  Form7& form = types.open();
  form.View101.set_selected(1, true);
  types.machine.dialogs().answer(Answer::kYes);
  form.command911.click();
  EXPECT_EQ(types.table(), record("", "", "1"));
  EXPECT_EQ(rows(form.View1000), kClosingRow);
}

TEST(TypePage, DeletesNothingAtANo) {
  Types types;
  Form7& form = types.open();
  form.View101.set_selected(1, true);
  form.command911.click();
  EXPECT_EQ(types.table(), kTemporary + kOld + kLogs);
  EXPECT_EQ(form.View101.count(), 3);
}

TEST(TypePage, NotesTheRowThatWasClicked) {
  Types types;
  Form7& form = types.open();
  form.command811.set_enabled(false);
  form.command911.set_enabled(false);
  form.View101.click_row(2);
  EXPECT_EQ(form.typelistrow, 2);
  EXPECT_TRUE(form.command811.enabled());
  EXPECT_TRUE(form.command911.enabled());
}

TEST(TypePage, EditsTheRowThatWasClicked) {
  Types types;
  Form7& form = types.open();
  form.View101.click_row(2);
  types.in_dialog([&] { form.command811.click(); },
                  [&](Form4& dialog) {
                    EXPECT_EQ(dialog.Text1.text(), "Old files");
                    EXPECT_EQ(dialog.Text2.text(), "*.old");
                    EXPECT_EQ(dialog.Text3.text(), "2");
                    dialog.Text1.set_text(" Older files ");
                    dialog.Text2.set_text("*.tmp");  // another row has it: not looked for
                    dialog.Command1.click();
                    EXPECT_TRUE(dialog.unloaded());
                  });
  EXPECT_EQ(types.table(), kTemporary + record("Older files", "*.tmp", "0") + kLogs);
  EXPECT_EQ(types.messages(), Texts{});
}

TEST(TypePage, AsksForARowBeforeItEditsOne) {
  Types types;
  Form7& form = types.open();
  form.command811.click();
  const auto boxes = types.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "Please select file first");
  EXPECT_EQ(boxes[0].style, 48U);
  form.View101.click_row(1);
  form.View101.set_text(1, "");
  form.command811.click();
  EXPECT_EQ(types.messages(), Texts{"Please select file first"});
}

TEST(TypePage, PassesOverARowThatIsGone) {
  Types types;
  Form7& form = types.open();
  form.View101.click_row(3);
  form.View101.clear();
  form.command811.click();
  EXPECT_EQ(types.messages(), Texts{});
}

TEST(TypePage, AddsARowWithoutATick) {
  Types types(kTemporary);
  Form7& form = types.open();
  types.in_dialog([&] { form.command111.click(); },
                  [](Form4& dialog) {
                    EXPECT_EQ(dialog.Text3.text(), "0");
                    EXPECT_EQ(dialog.Text1.text(), "");
                    dialog.Text1.set_text("Temporary files");  // the description may be there
                    dialog.Text2.set_text("*.$$$");
                    dialog.Command1.click();
                  });
  EXPECT_EQ(types.table(), kTemporary + record("Temporary files", "*.$$$", "0"));
  EXPECT_EQ(rows(form.View1000), (Texts{"Temporary files", "System Temporary Folders"}));
}

TEST(TypePage, WantsADescriptionAndAPattern) {
  Types types(kTemporary);
  Form7& form = types.open();
  types.in_dialog([&] { form.a1.click(); },
                  [](Form4& dialog) {
                    dialog.Command1.click();
                    dialog.Text1.set_text("Old files");
                    dialog.Text2.set_text("  ");
                    dialog.Command1.click();
                    EXPECT_FALSE(dialog.unloaded());
                  });
  const auto boxes = types.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0].text, "You didn't enter the description or extension");
  EXPECT_EQ(boxes[0].title, "Error");
  EXPECT_EQ(boxes[0].style, 16U);
  EXPECT_EQ(form.View101.count(), 1);
}

TEST(TypePage, TakesNoPatternTwiceAndClosesAsIfAllWereWell) {
  for (const char* pattern : {" *.TMP ", "*.?mp", "*", "*.[t]mp"}) {
    Types types(kTemporary);
    Form7& form = types.open();
    types.in_dialog([&] { form.command111.click(); },
                    [&](Form4& dialog) {
                      dialog.Text1.set_text("More");
                      dialog.Text2.set_text(pattern);
                      dialog.Command1.click();
                      EXPECT_TRUE(dialog.unloaded()) << pattern;
                    });
    EXPECT_EQ(types.table(), kTemporary) << pattern;
    EXPECT_EQ(types.messages(), Texts{"This File type is already entered"}) << pattern;
    EXPECT_EQ(form.View1000.count(), 2) << pattern;  // the table was saved all the same
  }
}

TEST(TypePage, LeavesTheDialogWithoutAChange) {
  Types types(kTemporary);
  Form7& form = types.open();
  ChangeList seen;
  form.view1.observe(seen);
  for (const bool by_the_cross : {false, true}) {
    types.in_dialog([&] { form.command111.click(); },
                    [&](Form4& dialog) {
                      dialog.Text1.set_text("Old files");
                      dialog.Text2.set_text("*.old");
                      (by_the_cross ? dialog.chameleonButton3 : dialog.Command2).click();
                      EXPECT_TRUE(dialog.unloaded());
                    });
  }
  EXPECT_EQ(types.table(), kTemporary);
  EXPECT_EQ(seen.changes, std::vector{Change::kFocus});  // by the button alone
}

TEST(TypeSummary, ShowsTheRowsThatAreOnWithTheirIcons) {
  Types types(kTemporary + kOld + record("Backup files", "*.bak", "1") + record("", "*.x", "1") +
              record("No pattern", "", "1") + record("Half on", "*.gid", "5"));
  Form7& form = types.start();

  form.Command1.click();

  EXPECT_EQ(rows(form.View1000), (Texts{"Temporary files", "Backup files", "No pattern", "Half on",
                                        "System Temporary Folders"}));
  EXPECT_EQ(rows(form.View1000, 1), (Texts{"*.tmp", "*.bak", "", "*.gid", "*.*"}));
  Texts icons;
  for (int row = 1; row <= form.View1000.count(); ++row) {
    icons.push_back(form.View1000.icon(row).value_or("none"));
  }
  EXPECT_EQ(icons, (Texts{"tmp", "bak", "0by", "gid", "oth"}));
  EXPECT_EQ(ticked(form.View1000), (std::vector<int>{1, 2, 3}));
}

TEST(TypeSummary, IsShownAnewByItsMailBox) {
  Types types;
  Form7& form = types.start();
  form.Text11.set_text("0");
  EXPECT_EQ(form.View1000.count(), 0);
  form.Text11.set_text("1");
  EXPECT_EQ(form.View1000.count(), 3);
}

TEST(TypeSummary, HasTheClosingRowAloneWithoutARowThatIsOn) {
  Types types(kOld);
  Form7& form = types.open();
  form.command511.click();
  EXPECT_EQ(rows(form.View1000), kClosingRow);
}

TEST(TypeSummary, NotesTheRowThatWasClicked) {
  Types types;
  Form7& form = types.start();
  form.Command1.click();
  form.View1000.click_row(2);
  EXPECT_EQ(form.typerow, 2);
}

TEST(UnreadTypeTable, IsNotChanged) {
  Types types;
  UnreadableFile files(types.machine.platform().files, kProgramFolder + "\\tmptype.txt");
  types.program.emplace(types.machine.platform().with({.files = &files}));
  types.program->start("");
  Form7& form = types.program->main_window();

  form.orvbutton8.click();
  for (const Button* command : {&form.command111, &form.command811, &form.command911,
                                &form.orvbutton611, &form.orvbutton711}) {
    EXPECT_FALSE(command->enabled()) << command->name();
  }
  form.Text12.set_text("1");
  EXPECT_EQ(types.messages(),
            Texts{kProgramFolder + "\\tmptype.txt: it cannot be read. The table is not changed "
                                   "while it cannot be read."});
  files.why = std::nullopt;
  EXPECT_EQ(types.table(), kTemporary + kOld + kLogs);

  form.orvbutton8.click();
  EXPECT_TRUE(form.command111.enabled());
  EXPECT_EQ(form.View101.count(), 3);
}

TEST(TypeTableInUse, StaysAsItIsWithoutAWord) {
  Types types(kTemporary + kOld, R"({"inUse": ["C:\\Program Files\\Tidewrack\\tmptype.txt"]})");
  Form7& form = types.open();
  form.View101.tick_row(2, true);
  EXPECT_EQ(types.table(), kTemporary + kOld);
  EXPECT_EQ(ticked(form.View101), (std::vector<int>{1, 2}));
  EXPECT_EQ(types.messages(), Texts{});
}

}  // namespace
}  // namespace quillvane
