// The queues that a drive search works by.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/scan_fixture.h"
#include "tests/support/unreadable_file.h"

namespace quillvane {
namespace {

const std::string kTemp = "c:\\users\\user\\appdata\\local\\temp\\";

std::string record(std::string name, const std::string& flag) {
  name.resize(400, ' ');
  return name + flag;
}

TEST(ExcludeQueue, HasTheFoldersInLowerCaseAndTheTemporaryFolder) {
  ScanFixture fixture;
  fixture.add_program_file("exfolder.orv", record("C:\\Data", "9") + record("Notes.txt", "1") +
                                               record("", "9") + record("C:\\Odd", "5"));
  fixture.add_program_file("ignore.tdw", "C:\\Kept\r\n");
  Form7& form = fixture.start();

  form.Command5.click();

  EXPECT_EQ(form.List6.items(), (Texts{"c:\\data", kTemp}));
  // A file goes into the ignore list as it stands, in capitals too.
  EXPECT_EQ(form.ignorelist.text(), "c:\\kept|Notes.txt|");
  EXPECT_EQ(form.exclude_problem, "");
}

TEST(ExcludeQueue, IsFilledOnceARun) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.Command5.click();
  EXPECT_EQ(form.List6.items(), Texts{kTemp});
  EXPECT_EQ(fixture.program_file("exfolder.orv"), "");  // a missing list is made
  fixture.add_program_file("exfolder.orv", record("C:\\Data", "9") + record("a.txt", "1"));
  form.Command5.click();
  EXPECT_EQ(form.List6.items(), Texts{kTemp});
  EXPECT_EQ(form.ignorelist.text(), "");
}

TEST(ExcludeQueue, LosesItsFilesWithTheNextReadingOfTheIgnoreList) {
  ScanFixture fixture;
  fixture.add_program_file("exfolder.orv", record("a.txt", "1"));
  Form7& form = fixture.start();
  form.Command5.click();
  EXPECT_EQ(form.ignorelist.text(), "a.txt|");
  form.Text14.set_text("i");
  form.Command5.click();
  EXPECT_EQ(form.ignorelist.text(), "");
}

TEST(ExcludeQueue, TellsWhyItsListWasNotRead) {
  ScanFixture fixture;
  fixture.add_program_file("exfolder.orv", record("C:\\Data", "9"));
  UnreadableFile files(fixture.machine.platform().files, kProgramFolder + "\\exfolder.orv",
                       ReadFailure::kDenied);
  fixture.program.emplace(fixture.machine.platform().with({.files = &files}));
  fixture.program->start("");
  Form7& form = fixture.program->main_window();
  form.Command5.click();
  EXPECT_EQ(form.exclude_problem, "access is denied");
  EXPECT_EQ(form.List6.items(), Texts{kTemp});
}

TEST(IncludeQueue, HasTheFoldersThatAreThereAsTheyStand) {
  ScanFixture fixture(R"({"drives": [{"letter": "C"}, {"letter": "D"}]})");
  fixture.machine.add_folder("C:\\Junk");
  fixture.machine.add_file("C:\\a file", 1);
  fixture.add_program_file("incfolder.orv", record("C:\\Junk", "1") + record("C:\\Gone", "1") +
                                                record("", "1") + record("c:\\junk\\", "1") +
                                                record("D:", "1") + record("C:\\a file", "1") +
                                                record("E:", "1"));
  const std::string before = *fixture.program_file("incfolder.orv");
  Form7& form = fixture.start();

  form.Command4.click();

  EXPECT_EQ(form.List5.items(), (Texts{"C:\\Junk", "c:\\junk\\", "D:"}));
  EXPECT_EQ(fixture.program_file("incfolder.orv"), before);
}

// They would be looked for below the folder in which the program happens to work.
TEST(IncludeQueue, LeavesOutWhatIsNoWholePath) {
  ScanFixture fixture;
  fixture.machine.add_folder("C:\\Junk");
  fixture.add_program_file("incfolder.orv", record("Junk", "1") + record("\\Junk", "1") +
                                                record("C:Junk", "1") + record(".", "1"));
  Form7& form = fixture.start();
  form.Command4.click();
  EXPECT_EQ(form.List5.count(), 0);
}

TEST(IncludeQueue, IsEmptyForAFileOfTwoBytesAndForNone) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.Command4.click();
  EXPECT_EQ(form.List5.count(), 0);
  EXPECT_EQ(fixture.program_file("incfolder.orv"), std::nullopt);
  fixture.add_program_file("incfolder.orv", "C:");
  form.Command4.click();
  EXPECT_EQ(form.List5.count(), 0);
}

TEST(IncludeQueue, IsFilledOnceARun) {
  ScanFixture fixture;
  fixture.machine.add_folder("C:\\A");
  fixture.machine.add_folder("C:\\B");
  fixture.add_program_file("incfolder.orv", record("C:\\A", "1"));
  Form7& form = fixture.start();
  form.Command4.click();
  fixture.add_program_file("incfolder.orv", record("C:\\B", "1"));
  form.Command4.click();
  EXPECT_EQ(form.List5.items(), Texts{"C:\\A"});
}

TEST(ExcludedRows, AreThoseThatBeginWithAnItemOfTheQueue) {
  ScanFixture fixture;
  fixture.add_program_file("exfolder.orv", record("C:\\Data", "9") + record("D:\\?\\", "9"));
  Form7& form = fixture.start();
  for (const char* path : {"C:\\Data\\a.tmp", " C:\\DATABASE.tmp", "C:\\Other\\a.tmp",
                           "D:\\x\\a.tmp", "C:\\Users\\User\\AppData\\Local\\Temp\\a.tmp"}) {
    add_hit(form.view1, path, 25);
  }
  form.Command6.click();
  EXPECT_EQ(rows(form.view1), Texts{"C:\\Other\\a.tmp"});
}

}  // namespace
}  // namespace quillvane
