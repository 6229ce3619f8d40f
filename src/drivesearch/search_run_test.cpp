// The run of the drive search: its drives, passes, folders and lists.
#include "drivesearch/search_run.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/search_fixture.h"

namespace quillvane {
namespace {

// --- Drives.

TEST(Command11, WithoutATickedDriveOnlyAMessageComes) {
  SearchFixture fixture;
  fixture.machine.add_file("C:\\a.tmp", 10);
  Form7& form = fixture.start();
  form.Command11.click();
  const auto boxes = fixture.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text, "Please Select at least one drive to check it");
  EXPECT_EQ(boxes[0].style, 64U);
  EXPECT_EQ(form.nodrivepicked, 1);
  EXPECT_EQ(form.view1.count(), 0);
  EXPECT_EQ(form.Text2.text(), "");
}

TEST(Command11, UnattendedTheFirstDriveIsTaken) {
  SearchFixture fixture(kTwoDrives);
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.machine.add_file("C:\\a.tmp", 10);
  fixture.machine.add_file("D:\\b.tmp", 10);
  Form7& form = fixture.start();
  form.session.silentmode = 1;
  form.Command11.click();
  EXPECT_EQ(ticked(form.View2), std::vector{1});
  EXPECT_EQ(rows(form.view1), Texts{"C:\\a.tmp"});
}

TEST(Command11, SearchesTheTickedDrivesInTheirOrder) {
  SearchFixture fixture(kTwoDrives);
  fixture.add_types({{"Temp", "*.tmp", true}, {"Backup", "*.bak", false}, {"Old", "*.old", true}});
  for (const char* path : {"C:\\T\\a.old", "C:\\b.tmp", "C:\\c.old", "C:\\d.bak", "D:\\e.tmp"}) {
    fixture.machine.add_file(path, 10);
  }
  Form7& form = fixture.start_with_drives({1, 2});
  form.Command11.click();
  EXPECT_EQ(form.Text2.text(), "*.tmp|*.old");
  EXPECT_EQ(rows(form.view1), (Texts{"C:\\b.tmp", "C:\\c.old", "C:\\T\\a.old", "D:\\e.tmp"}));
  EXPECT_EQ(rows(form.View2, 3), (Texts{"Finish", "Finish"}));
  EXPECT_EQ(form.View2.icon(1), "f");
  EXPECT_EQ(form.foundcount, 4);
  EXPECT_EQ(form.foundbytes, 40);
}

TEST(Command11, ADriveThatIsNotTickedKeepsItsStatus) {
  SearchFixture fixture(kTwoDrives);
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.machine.add_file("C:\\a.tmp", 10);
  fixture.machine.add_file("D:\\b.tmp", 10);
  Form7& form = fixture.start_with_drives({2});
  form.Command11.click();
  EXPECT_EQ(rows(form.view1), Texts{"D:\\b.tmp"});
  EXPECT_EQ(rows(form.View2, 3), (Texts{"", "Finish"}));
}

TEST(Command11, TheBarLagsByOneDrive) {
  SearchFixture fixture(kTwoDrives);
  Form7& form = fixture.start_with_drives({1, 2});
  form.Command11.click();
  EXPECT_EQ(form.Bar1.maximum(), 2);
  EXPECT_EQ(form.Bar1.value(), 1);
  // Behind the row that was finished last.
  EXPECT_EQ(form.txtviewf.text(), "3");
}

// --- Rows.

TEST(Command11, ARowShowsLengthTimeAndCategory) {
  SearchFixture fixture(R"({"utcOffsetMinutes": 120})");
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.machine.add_file("C:\\a.tmp", 5368709120);
  Form7& form = fixture.start_with_drives({1});
  form.Command11.click();
  ASSERT_EQ(form.view1.count(), 1);
  EXPECT_EQ(form.view1.text(1), "C:\\a.tmp");
  EXPECT_EQ(form.view1.sub_item(1, kSizeColumn), "5368709120");
  EXPECT_EQ(form.view1.sub_item(1, kCategoryColumn), "25");
  EXPECT_EQ(form.view1.icon(1), "17");
  EXPECT_TRUE(form.view1.checked(1));
  EXPECT_EQ(form.foundbytes, 5368709120.0);
}

TEST(Command11, AnOldResultIsGone) {
  SearchFixture fixture;
  Form7& form = fixture.start_with_drives({1});
  add_hit(form.view1, "C:\\old.tmp", 2);
  form.View10.add("x");
  form.Command11.click();
  EXPECT_EQ(form.view1.count(), 0);
  EXPECT_EQ(form.View10.count(), 0);
}

// --- Types.

TEST(Command11, WithAllTypesOffTheDriveYieldsNothing) {
  SearchFixture fixture;
  fixture.add_types({{"Temp", "*.tmp", false}});
  fixture.machine.add_file("C:\\a.tmp", 10);
  fixture.include({"C:\\In"});
  fixture.machine.add_file("C:\\In\\b.doc", 10);
  fixture.machine.add_file("C:\\Users\\User\\AppData\\Local\\Temp\\c.doc", 10);
  Form7& form = fixture.start_with_drives({1});
  form.Command11.click();
  EXPECT_EQ(form.Text2.text(), "fgrft.gftr");
  // Folders of the include list, and the temporary folder with them, are listed all the same.
  EXPECT_EQ(rows(form.view1),
            (Texts{"C:\\In\\b.doc", "C:\\Users\\User\\AppData\\Local\\Temp\\c.doc"}));
  EXPECT_EQ(rows(form.View2, 3), Texts{"Finish"});
}

TEST(Command11, TheRowOfZeroSizeListsEveryFileOfTheDrive) {
  SearchFixture fixture;
  fixture.add_types({{"Temp", "*.tmp", true}, {"File With Zero Size", "*.*", true}});
  fixture.machine.add_file("C:\\a.tmp", 10);
  fixture.machine.add_file("C:\\b.doc", 0);
  fixture.machine.add_file("C:\\c.doc", 10);
  Form7& form = fixture.start_with_drives({1});
  form.Command11.click();
  EXPECT_EQ(form.zerosizeon, 1);
  EXPECT_EQ(form.searchpass, 1);
  // The pass of the patterns, then that of all files: the first file comes by both.
  const Texts listed = rows(form.view1);
  EXPECT_EQ(Texts(listed.begin(), listed.begin() + 4),
            (Texts{"C:\\a.tmp", "C:\\a.tmp", "C:\\b.doc", "C:\\c.doc"}));
}

TEST(Command11, TheRowOfZeroSizeThatIsOffClearsText3) {
  SearchFixture fixture;
  fixture.add_types({{"file with zero size", "*.*", false}});
  Form7& form = fixture.start_with_drives({1});
  form.Text3.set_text("7");
  form.Command11.click();
  EXPECT_EQ(form.zerosizeon, 0);
  EXPECT_EQ(form.searchpass, 0);
  EXPECT_EQ(form.Text3.text(), "0");
}

// --- The include list.

TEST(Command3, WithoutAFolderTheTemporaryFolderIsNotSearched) {
  SearchFixture fixture;
  fixture.include({"C:\\missing"});
  fixture.machine.add_file("C:\\Users\\User\\AppData\\Local\\Temp\\c.doc", 10);
  Form7& form = fixture.start();
  form.Command3.click();
  EXPECT_EQ(form.view1.count(), 0);
}

TEST(Command3, TakesAllFilesOfTheFoldersAndOfTheTemporaryFolder) {
  SearchFixture fixture;
  fixture.include({"C:\\In", "C:\\In\\deep"});
  fixture.machine.add_file("C:\\In\\deep\\a.doc", 10);
  fixture.machine.add_file("C:\\Users\\User\\AppData\\Local\\Temp\\b.doc", 10);
  Form7& form = fixture.start();
  form.Command3.click();
  EXPECT_EQ(rows(form.view1), (Texts{"C:\\In\\deep\\a.doc", "C:\\In\\deep\\a.doc",
                                     "C:\\Users\\User\\AppData\\Local\\Temp\\b.doc"}));
}

TEST(Command11, AFileOfAnIncludedFolderComesAgainByItsType) {
  SearchFixture fixture;
  fixture.add_types({{"Temp", "*.tmp", true}, {"All a", "a*.*", true}});
  fixture.include({"C:\\In"});
  fixture.machine.add_file("C:\\In\\a.tmp", 10);
  Form7& form = fixture.start_with_drives({1});
  form.Command11.click();
  // Once by the list, and once by two patterns.
  EXPECT_EQ(rows(form.view1), (Texts{"C:\\In\\a.tmp", "C:\\In\\a.tmp"}));
}

// --- The system's temporary folders.

constexpr const char* kOption = "software\\Quillvane\\Tidewrack Deluxe\\option\\systemp";
constexpr const char* kVersion = "software\\microsoft\\windows\\currentversion";
constexpr const char* kVersionOfNt = "software\\microsoft\\windows nt\\currentversion";
const std::string kShellFolders =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

struct SystemTemp : SearchFixture {
  SystemTemp() {
    machine.add_file("C:\\Local\\temp\\a.doc", 10);
    machine.add_file("C:\\Root\\temp\\b.doc", 10);
    machine.add_file("C:\\temp\\never.doc", 10);
    machine.set_registry_text(Hive::kCurrentUser, kShellFolders, "Local Settings", "C:\\Local");
    machine.set_registry_text(Hive::kLocalMachine, kOption, "systemp", "1");
    machine.set_registry_text(Hive::kLocalMachine, kVersion, "SystemRoot", "C:\\Root");
  }
  Texts found() {
    Form7& form = start();
    form.Command10.click();
    return rows(form.view1);
  }
};

TEST(Command10, SearchesTheTwoFolders) {
  SystemTemp fixture;
  EXPECT_EQ(fixture.found(), (Texts{"C:\\Local\\temp\\a.doc", "C:\\Root\\temp\\b.doc"}));
  const Form7& form = fixture.program->main_window();
  EXPECT_EQ(form.searchpass, 1);
  EXPECT_EQ(form.temppass, 1);
}

TEST(Command10, SearchesNothingWithoutTheOption) {
  SystemTemp fixture;
  fixture.machine.set_registry_text(Hive::kLocalMachine, kOption, "systemp", "0");
  EXPECT_EQ(fixture.found(), Texts{});
  EXPECT_EQ(fixture.program->main_window().temppass, 0);
}

TEST(Command10, AskForTheFoldersInTwoPlaces) {
  SystemTemp fixture;
  fixture.machine.set_registry_text(Hive::kLocalMachine, kVersion, "SystemRoot", "  ");
  fixture.machine.set_registry_text(Hive::kLocalMachine, kVersionOfNt, "SystemRoot", "C:\\Root");
  fixture.machine.set_registry_text(Hive::kCurrentUser, kShellFolders, "Local Settings", "");
  fixture.machine.set_registry_text(
      Hive::kCurrentUser,
      "Software\\Microsoft\\Windows nt\\CurrentVersion\\Explorer\\Shell Folders", "Local Settings",
      "C:\\Local");
  EXPECT_EQ(fixture.found(), (Texts{"C:\\Local\\temp\\a.doc", "C:\\Root\\temp\\b.doc"}));
}

TEST(Command10, WithoutTheFolderOfWindowsNothingIsSearched) {
  SystemTemp fixture;
  fixture.machine.set_registry_text(Hive::kLocalMachine, kVersion, "SystemRoot", "");
  fixture.machine.set_registry_text(Hive::kLocalMachine, kVersionOfNt, "SystemRoot", "");
  EXPECT_EQ(fixture.found(), Texts{});
}

TEST(Command10, AMissingShellFolderIsNotTheRootOfADrive) {
  SystemTemp fixture;
  fixture.machine.set_registry_text(Hive::kCurrentUser, kShellFolders, "Local Settings", "");
  EXPECT_EQ(fixture.found(), Texts{"C:\\Root\\temp\\b.doc"});
}

// --- Cancel.

TEST(Command11, ACancelledDriveAndThoseBehindItGetNoMark) {
  SearchFixture fixture(kTwoDrives);
  fixture.add_types({{"Temp", "*.tmp", true}});
  for (const char* path : {"C:\\T\\a.tmp", "C:\\T\\s\\b.tmp", "D:\\c.tmp"}) {
    fixture.machine.add_file(path, 10);
  }
  Form7& form = fixture.start_with_drives({1, 2});
  fixture.when([&] { return form.Label5.caption() == "C:\\T\\"; },
               [&] { form.orvbutton10.click(); });
  form.Command11.click();
  // The second drive is searched all the same.
  EXPECT_EQ(rows(form.view1), Texts{"D:\\c.tmp"});
  EXPECT_EQ(rows(form.View2, 3), (Texts{"", ""}));
  EXPECT_EQ(form.Bar1.value(), 0);
  EXPECT_EQ(form.orvbutton10.caption(), "Exit");
  // The number of the row in work still goes on.
  EXPECT_EQ(form.txtviewf.text(), "3");
}

TEST(Command11, ShowsTheEndOfTheRun) {
  SearchFixture fixture;
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.machine.add_file("C:\\a.tmp", 10);
  Form7& form = fixture.start_with_drives({1});
  form.txtfilecont.set_text("7");
  form.txtfilesize.set_text("7");
  form.Command11.click();
  EXPECT_EQ(form.Label5.caption(), "Total files  ");
  EXPECT_EQ(form.txtfilecont.text(), "");
  EXPECT_EQ(form.txtfilesize.text(), "");
  EXPECT_EQ(form.Text6.text(), "0");
  EXPECT_EQ(form.Text4.text(), "0");
  EXPECT_EQ(form.orvbutton10.caption(), "Exit");
  EXPECT_TRUE(form.Frame80.visible());
  for (const Frame* frame : {&form.Frame2, &form.Frame4, &form.Frame6}) {
    EXPECT_FALSE(frame->visible());
  }
  EXPECT_TRUE(form.orvbutton2.enabled());
  EXPECT_TRUE(form.orvbutton8.enabled());
  EXPECT_TRUE(form.chameleonButton1.enabled());
}

TEST(Command11, WithoutAHitTheWaysToTheListsStayShut) {
  SearchFixture fixture;
  Form7& form = fixture.start_with_drives({1});
  form.Command11.click();
  EXPECT_FALSE(form.Frame80.visible() && !form.Frame2.visible());
  EXPECT_FALSE(form.orvbutton2.enabled());
  EXPECT_FALSE(form.orvbutton8.enabled());
  EXPECT_FALSE(form.chameleonButton1.enabled());
}

TEST(Command11, EndsWithTheProgram) {
  SearchFixture fixture(kTwoDrives);
  fixture.add_types({{"Temp", "*.tmp", true}});
  fixture.machine.add_file("C:\\T\\a.tmp", 10);
  fixture.machine.add_file("D:\\b.tmp", 10);
  Form7& form = fixture.start_with_drives({1, 2});
  fixture.when([&] { return form.Label5.caption() == "C:\\T\\"; }, [&] { form.session.end(); });
  form.Command11.click();
  EXPECT_EQ(form.view1.count(), 0);
}

// --- Blink.

TEST(Timer1, BlinksTheDriveInWorkEachSecond) {
  SearchFixture fixture;
  Form7& form = fixture.start();
  form.txtviewf.set_text("1");
  form.session.PumpWait(std::chrono::milliseconds(3000));
  EXPECT_EQ(form.View2.sub_item(1, 3), "");  // no search runs
  form.Text6.set_text("1");
  form.session.PumpWait(std::chrono::milliseconds(1000));
  EXPECT_EQ(form.View2.sub_item(1, 3), "analyzing");
  EXPECT_EQ(form.View2.icon(1), "t");
  EXPECT_EQ(form.txttime.text(), "1");
  form.session.PumpWait(std::chrono::milliseconds(1000));
  EXPECT_EQ(form.View2.icon(1), "te");
  EXPECT_EQ(form.txttime.text(), "0");
  form.Text6.set_text("0");
  form.session.PumpWait(std::chrono::milliseconds(2000));
  EXPECT_EQ(form.View2.icon(1), "te");
  EXPECT_TRUE(form.Timer1.running());
}

TEST(Timer1, ARowThatIsNotThereIsPassedOver) {
  SearchFixture fixture;
  Form7& form = fixture.start();
  form.txtviewf.set_text("9");
  form.Text6.set_text("1");
  form.session.PumpWait(std::chrono::milliseconds(1000));
  EXPECT_EQ(form.txttime.text(), "1");
  EXPECT_EQ(form.View2.sub_item(1, 3), "");
}

}  // namespace
}  // namespace quillvane
