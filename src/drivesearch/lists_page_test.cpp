// The page of the exclude and include lists: what it shows, what it changes, what it saves.
#include "drivesearch/lists_page.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/scan_fixture.h"
#include "tests/support/unreadable_file.h"

namespace quillvane {
namespace {

// One record: name 150, description 250, flag 1.
std::string record(std::string name, std::string description, const std::string& flag) {
  name.resize(150, ' ');
  description.resize(250, ' ');
  return name + description + flag;
}

struct Lists : ScanFixture {
  using ScanFixture::ScanFixture;

  // The program with the page opened.
  Form7& open() {
    Form7& form = start();
    form.chameleonButton1.click();
    return form;
  }
  [[nodiscard]] std::string excluded() { return program_file("exfolder.orv").value_or("missing"); }
  [[nodiscard]] std::string included() { return program_file("incfolder.orv").value_or("missing"); }
};

TEST(ListsPage, ShowsTheExcludeListInFront) {
  Lists lists;
  lists.add_program_file("exfolder.orv", record("C:\\Data", "My data", "9") +
                                             record("notes.txt", "A file", "1") +
                                             record("C:\\Odd", "No digit", " "));
  lists.add_program_file("incfolder.orv", record("D:\\Junk", "All of it", "1"));

  Form7& form = lists.open();

  EXPECT_EQ(form.wizardstep, 2);
  EXPECT_TRUE(form.Frame6.visible());
  EXPECT_FALSE(form.Frame80.visible());
  EXPECT_TRUE(form.View201.visible());
  EXPECT_FALSE(form.View202.visible());
  EXPECT_EQ(rows(form.View201), (Texts{"C:\\Data", "notes.txt", "C:\\Odd"}));
  EXPECT_EQ(rows(form.View201, 1), (Texts{"My data", "A file", "No digit"}));
  EXPECT_EQ(rows(form.View201, 2), (Texts{"9", "1", ""}));
  EXPECT_EQ(form.View201.icon(1), "fol");
  EXPECT_EQ(form.View201.icon(2), "file");
  EXPECT_EQ(form.View201.icon(3), "file");
  EXPECT_EQ(form.Text55.text(), "1");
  EXPECT_EQ(form.Text52.text(), "");
  EXPECT_EQ(form.TabStrip1.chosen(), 1);
  EXPECT_EQ(form.command331.caption(), "Add new exclude folder");
  EXPECT_EQ(form.Label8.caption(), "Exclude all files in these folders");
  EXPECT_TRUE(form.chameleonButton5.enabled());
  // Both lists are read.
  EXPECT_EQ(rows(form.View202), Texts{"D:\\Junk"});
}

TEST(ListsPage, DisablesWhatNeedsAClickedRow) {
  Lists lists;
  Form7& form = lists.open();
  for (const Button* button :
       {&form.command338, &form.command339, &form.command811, &form.command911}) {
    EXPECT_FALSE(button->enabled()) << button->name();
  }
}

TEST(ListsPage, ShowsTheIncludeListBehindItsTab) {
  Lists lists;
  lists.add_program_file("incfolder.orv", record("D:\\Junk", "All of it", "7"));
  Form7& form = lists.open();
  form.View201.move(300, 200);

  form.TabStrip1.click_tab(2);

  EXPECT_FALSE(form.View201.visible());
  EXPECT_TRUE(form.View202.visible());
  EXPECT_EQ(form.View202.left(), 300);
  EXPECT_EQ(form.View202.top(), 200);
  EXPECT_EQ(rows(form.View202), Texts{"D:\\Junk"});
  EXPECT_EQ(form.View202.sub_item_count(1), 1);  // the flag is not shown
  EXPECT_EQ(form.View202.icon(1), "fol");
  EXPECT_EQ(form.Text55.text(), "2");
  EXPECT_EQ(form.command331.caption(), "Add new include folder");
  EXPECT_EQ(form.Label8.caption(), "Include all files in these folders, Regardless files type");
  EXPECT_FALSE(form.chameleonButton5.enabled());
}

TEST(ListsPage, ReadsAListEachTimeItIsBroughtToTheFront) {
  Lists lists;
  Form7& form = lists.open();
  form.TabStrip1.click_tab(2);
  lists.add_program_file("exfolder.orv", record("C:\\Data", "", "9"));
  form.chameleonButton331.click();
  EXPECT_EQ(rows(form.View201), Texts{"C:\\Data"});
  EXPECT_EQ(form.TabStrip1.chosen(), 1);
  form.chameleonButton332.click();
  EXPECT_EQ(form.TabStrip1.chosen(), 2);
  EXPECT_TRUE(form.View202.visible());
}

TEST(ListsPage, MakesMissingListsEmpty) {
  Lists lists;
  Form7& form = lists.open();
  EXPECT_EQ(lists.excluded(), "");
  EXPECT_EQ(lists.included(), "");
  EXPECT_EQ(form.View201.count(), 0);
}

TEST(ListsPage, NotesTheRowThatWasClickedOrTicked) {
  Lists lists;
  lists.add_program_file("exfolder.orv", record("C:\\A", "", "9") + record("C:\\B", "", "9"));
  lists.add_program_file("incfolder.orv", record("C:\\C", "", "1"));
  Form7& form = lists.open();
  form.View201.click_row(2);
  EXPECT_EQ(form.Text52.text(), "2");
  EXPECT_TRUE(form.command338.enabled());
  EXPECT_TRUE(form.command339.enabled());
  form.View201.tick_row(1, true);
  EXPECT_EQ(form.Text52.text(), "1");
  form.TabStrip1.click_tab(2);
  EXPECT_EQ(form.Text52.text(), "");
  form.View202.click_row(1);
  EXPECT_EQ(form.Text52.text(), "1");
}

TEST(ListsPage, AddsAFolderWithTheDescriptionThatIsGiven) {
  Lists lists;
  Form7& form = lists.open();
  lists.machine.dialogs().answer_path("C:\\Data");
  lists.machine.dialogs().answer_input("My data");

  form.command331.click();

  EXPECT_EQ(lists.excluded(), record("C:\\Data", "My data", "9"));
  EXPECT_EQ(lists.included(), "");
  EXPECT_EQ(form.View201.icon(1), "fol");
  const auto boxes = lists.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0].kind, "folder");
  EXPECT_EQ(boxes[0].text, "Select folder:");
  EXPECT_EQ(boxes[1].kind, "input");
  EXPECT_EQ(boxes[1].text, "Enter Description For This Folder");
  EXPECT_EQ(boxes[1].title, "exclud Folder Option");
  EXPECT_EQ(boxes[1].preset, "");
}

TEST(ListsPage, AddsADriveByItsLetterWithADescriptionOfItsOwn) {
  Lists lists;
  Form7& form = lists.open();
  lists.machine.dialogs().answer_path("D:\\");
  form.command331.click();
  EXPECT_EQ(lists.excluded(), record("D:", "Excluded Folder", "9"));

  form.TabStrip1.click_tab(2);
  lists.machine.dialogs().answer_path("E:\\");
  lists.machine.dialogs().answer_input("   ");
  static_cast<void>(lists.machine.dialogs().take_boxes());
  form.command331.click();
  EXPECT_EQ(lists.included(), record("E:", "Excluded Folder", "1"));
  EXPECT_EQ(lists.machine.dialogs().take_boxes()[1].title, "Include Folder Option");
}

TEST(ListsPage, NeverMakesADriveOfAFolderOnIt) {
  Lists lists;
  Form7& form = lists.open();
  form.TabStrip1.click_tab(2);
  lists.machine.dialogs().answer_path("C:\\Junk\\");
  form.command331.click();
  EXPECT_EQ(lists.included(), record("C:\\Junk", "Excluded Folder", "1"));
}

TEST(ListsPage, AddsAFolderAsOftenAsOneLikes) {
  Lists lists;
  Form7& form = lists.open();
  for (int time = 0; time < 2; ++time) {
    lists.machine.dialogs().answer_path("C:\\Data");
    form.command331.click();
  }
  EXPECT_EQ(lists.excluded(), record("C:\\Data", "Excluded Folder", "9") +
                                  record("C:\\Data", "Excluded Folder", "9"));
}

TEST(ListsPage, AddsNothingWhenTheDialogIsCancelledAndComesToTheTop) {
  Lists lists;
  Form7& form = lists.open();
  EXPECT_FALSE(form.topmost());
  form.command331.click();
  EXPECT_EQ(form.View201.count(), 0);
  EXPECT_TRUE(form.topmost());
}

TEST(ListsPage, CutsANameAt150AndADescriptionAt250) {
  Lists lists;
  Form7& form = lists.open();
  const std::string longest = "C:\\" + std::string(147, 'a');
  lists.machine.dialogs().answer_path(longest + "b");
  lists.machine.dialogs().answer_input(std::string(250, 'd') + "e");
  form.command331.click();
  EXPECT_EQ(lists.excluded(), record(longest, std::string(250, 'd'), "9"));
}

TEST(ListsPage, AddsAFileByItsNameWithTheIconOfAFolder) {
  Lists lists;
  Form7& form = lists.open();
  lists.machine.dialogs().answer_path("C:\\Data\\Notes.txt");

  form.chameleonButton5.click();

  EXPECT_EQ(lists.excluded(), record("Notes.txt", "Notes.txt", "1"));
  EXPECT_EQ(form.View201.icon(1), "fol");
  const auto boxes = lists.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].kind, "open");
  EXPECT_EQ(boxes[0].title, "Select File to Exclude from search");
  form.TabStrip1.click_tab(1);
  EXPECT_EQ(form.View201.icon(1), "file");
}

TEST(ListsPage, EditsTheRowOnTheScreenAlone) {
  Lists lists;
  const std::string old = record("notes.txt", "A file", "1");
  lists.add_program_file("exfolder.orv", old);
  Form7& form = lists.open();
  form.View201.click_row(1);
  lists.machine.dialogs().answer_path("D:\\");
  lists.machine.dialogs().answer_input("New");

  form.command338.click();

  EXPECT_EQ(rows(form.View201), Texts{"D:"});
  EXPECT_EQ(rows(form.View201, 1), Texts{"New"});
  EXPECT_EQ(lists.excluded(), old);
  EXPECT_EQ(form.Text52.text(), "");
  EXPECT_TRUE(form.topmost());
  EXPECT_NE(form.List6.count(), 0);  // the queue was filled, from the file
  const auto boxes = lists.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[1].title, "excluded Folder Option");
  EXPECT_EQ(boxes[1].preset, "A file");
  // The next command that saves writes it, with the flag that it had.
  form.chameleonButton5.click();
  EXPECT_EQ(lists.excluded(), record("D:", "New", "1"));
}

TEST(ListsPage, EditsAnIncludedFolderUnderTheSameTitle) {
  Lists lists;
  lists.add_program_file("incfolder.orv", record("D:\\Junk", "All of it", "1"));
  Form7& form = lists.open();
  form.TabStrip1.click_tab(2);
  form.View202.click_row(1);
  lists.machine.dialogs().answer_path("D:\\More");
  form.command338.click();
  EXPECT_EQ(rows(form.View202), Texts{"D:\\More"});
  EXPECT_EQ(rows(form.View202, 1), Texts{"Excluded Folder"});
  EXPECT_EQ(lists.machine.dialogs().take_boxes()[1].title, "excluded Folder Option");
}

TEST(ListsPage, EditsNothingWithoutAFolderOrARow) {
  Lists lists;
  lists.add_program_file("exfolder.orv", record("C:\\Data", "", "9"));
  Form7& form = lists.open();
  form.View201.click_row(1);
  form.command338.click();
  EXPECT_EQ(rows(form.View201), Texts{"C:\\Data"});
  EXPECT_EQ(form.Text52.text(), "");

  lists.machine.dialogs().answer_path("C:\\Other");
  form.command338.click();  // no row is clicked any more
  EXPECT_EQ(rows(form.View201), Texts{"C:\\Data"});
}

TEST(ListsPage, DeletesTheSelectedRowsAndTheirPlacesInTheQueue) {
  Lists lists;
  lists.add_program_file("exfolder.orv", record("C:\\A", "", "9") + record("C:\\B", "", "9") +
                                             record("C:\\C", "", "9") + record("C:\\D", "", "9"));
  Form7& form = lists.open();
  form.Command5.click();
  form.View201.click_row(1);
  for (const int row : {1, 2, 4}) form.View201.set_selected(row, true);
  lists.machine.dialogs().answer(Answer::kYes);

  form.command339.click();

  EXPECT_EQ(rows(form.View201), Texts{"C:\\C"});
  EXPECT_EQ(lists.excluded(), record("C:\\C", "", "9"));
  EXPECT_EQ(form.List6.items(), (Texts{"c:\\c", "c:\\users\\user\\appdata\\local\\temp\\"}));
  EXPECT_FALSE(form.command338.enabled());
  EXPECT_FALSE(form.command339.enabled());
  const auto boxes = lists.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "Are You Sure To Remove This Entry");
  EXPECT_EQ(boxes[0].title, "Delete");
  EXPECT_EQ(boxes[0].style, 36U);
}

TEST(ListsPage, TakesTheQueuesItemOfTheSameNumberWhateverItIs) {
  Lists lists;
  lists.add_program_file("exfolder.orv", record("notes.txt", "", "1") + record("C:\\B", "", "9"));
  Form7& form = lists.open();
  form.Command5.click();
  form.View201.set_selected(1, true);
  lists.machine.dialogs().answer(Answer::kYes);
  form.View201.click_row(1);
  form.command339.click();
  // The file has no item in the queue; the folder's goes.
  EXPECT_EQ(rows(form.View201), Texts{"C:\\B"});
  EXPECT_EQ(form.List6.items(), Texts{"c:\\users\\user\\appdata\\local\\temp\\"});
}

TEST(ListsPage, DeletesNothingAtANo) {
  Lists lists;
  lists.add_program_file("exfolder.orv", record("C:\\A", "", "9"));
  Form7& form = lists.open();
  form.View201.set_selected(1, true);
  form.View201.click_row(1);
  form.command339.click();
  EXPECT_EQ(form.View201.count(), 1);
  EXPECT_TRUE(form.command339.enabled());
}

TEST(ListsPage, DeletesIncludedRowsByTheSelectionInTheHiddenList) {
  Lists lists;
  lists.add_program_file("exfolder.orv", record("C:\\A", "", "9") + record("C:\\B", "", "9") +
                                             record("C:\\C", "", "9"));
  std::string included;
  for (const char* folder : {"D:\\1", "D:\\2", "D:\\3", "D:\\4"}) {
    included += record(folder, "", "1");
  }
  lists.add_program_file("incfolder.orv", included);
  Form7& form = lists.open();
  for (const char* item : {"one", "two", "three", "four"}) form.List5.add(item);
  form.View201.set_selected(1, true);
  form.View201.set_selected(3, true);
  form.TabStrip1.click_tab(2);
  form.View202.set_selected(4, true);  // says nothing
  form.View202.click_row(4);
  lists.machine.dialogs().answer(Answer::kYes);

  form.command339.click();

  EXPECT_EQ(rows(form.View202), (Texts{"D:\\2", "D:\\4"}));
  EXPECT_EQ(form.List5.items(), (Texts{"two", "four"}));
  EXPECT_EQ(lists.included(), record("D:\\2", "", "1") + record("D:\\4", "", "1"));
  EXPECT_EQ(form.View201.count(), 3);
}

TEST(ListsPage, DeletesNoIncludedRowWithoutASelectionAndSavesAllTheSame) {
  Lists lists;
  lists.add_program_file("incfolder.orv", record("", "", " ") + record("D:\\1", "", "1"));
  Form7& form = lists.open();
  form.TabStrip1.click_tab(2);
  form.View202.click_row(1);
  lists.machine.dialogs().answer(Answer::kYes);
  form.command339.click();
  EXPECT_EQ(rows(form.View202), Texts{"D:\\1"});
  EXPECT_EQ(lists.included(), record("D:\\1", "", "1"));  // the blank record is gone
}

TEST(ListsPage, ClosesTheGapOfABlankRecordWithTheNextSave) {
  Lists lists;
  lists.add_program_file("exfolder.orv", record("C:\\A", "", "9") + record("  ", "text", "9") +
                                             record("C:\\B", "", "9"));
  Form7& form = lists.open();
  EXPECT_EQ(rows(form.View201), (Texts{"C:\\A", "C:\\B"}));
  form.chameleonButton5.click();  // cancelled, and saved
  EXPECT_EQ(lists.excluded(), record("C:\\A", "", "9") + record("C:\\B", "", "9"));
}

TEST(ListsPage, SavesABlankFlagForARowWithoutOne) {
  Lists lists;
  lists.add_program_file("exfolder.orv", record("C:\\A", "", " "));
  Form7& form = lists.open();
  form.command335.click();
  EXPECT_EQ(lists.excluded(), record("C:\\A", "", " "));
}

TEST(ListsPage, KeepsAListThatIsInUse) {
  Lists lists(R"({"inUse": ["C:\\Program Files\\Tidewrack\\exfolder.orv"]})");
  const std::string old = record("C:\\A", "", "9");
  lists.add_program_file("exfolder.orv", old);
  Form7& form = lists.open();
  lists.machine.dialogs().answer_path("C:\\B");
  form.command331.click();
  EXPECT_EQ(lists.excluded(), old);
  EXPECT_EQ(rows(form.View201), (Texts{"C:\\A", "C:\\B"}));
  EXPECT_EQ(lists.included(), "");
}

TEST(ListsPage, SaysThatItsNumbersAreTooLong) {
  Lists lists;
  Form7& form = lists.start();
  form.Text52.set_text(std::string(50, '1'));
  form.Text55.set_text(std::string(50, '1'));
  EXPECT_TRUE(lists.machine.dialogs().take_boxes().empty());
  form.Text52.set_text(std::string(51, '1'));
  form.Text55.set_text(std::string(51, '1'));
  const auto boxes = lists.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 2U);
  EXPECT_EQ(boxes[0].text, " only 50 character please");
  EXPECT_EQ(boxes[0].style, 0U);
  EXPECT_EQ(boxes[1].text, " only 50 character please");
}

// A list that is there and cannot be read: it is not changed, and the user hears why.
struct Unread : Lists {
  explicit Unread(const std::string& name)
      : files(machine.platform().files, kProgramFolder + "\\" + name) {
    add_program_file("exfolder.orv", kExcluded);
    add_program_file("incfolder.orv", kIncluded);
    program.emplace(machine.platform().with({.files = &files}));
    program->start("");
    program->main_window().chameleonButton1.click();
  }
  Form7& form() { return program->main_window(); }

  const std::string kExcluded = record("C:\\A", "", "9");
  const std::string kIncluded = record("D:\\1", "", "1");
  UnreadableFile files;
};

TEST(UnreadFolderList, IsNotChangedWhileTheOtherIs) {
  Unread lists("exfolder.orv");
  EXPECT_FALSE(lists.form().command331.enabled());
  EXPECT_FALSE(lists.form().chameleonButton5.enabled());
  const auto boxes = lists.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text,
            kProgramFolder +
                "\\exfolder.orv: it cannot be read. The list is not changed while it "
                "cannot be read.");

  lists.form().TabStrip1.click_tab(2);
  EXPECT_TRUE(lists.form().command331.enabled());
  lists.machine.dialogs().answer_path("D:\\2");
  lists.form().command331.click();
  lists.files.why = std::nullopt;
  EXPECT_EQ(lists.excluded(), lists.kExcluded);
  EXPECT_EQ(lists.included(), lists.kIncluded + record("D:\\2", "Excluded Folder", "1"));
}

TEST(UnreadFolderList, IsChangedAgainOnceItIsRead) {
  Unread lists("incfolder.orv");
  lists.form().command335.click();
  EXPECT_EQ(lists.included(), lists.kIncluded);
  lists.files.why = std::nullopt;
  lists.form().TabStrip1.click_tab(2);
  EXPECT_TRUE(lists.form().command331.enabled());
  EXPECT_EQ(rows(lists.form().View202), Texts{"D:\\1"});
}

}  // namespace
}  // namespace quillvane
