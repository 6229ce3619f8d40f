// The backup: copies of the ticked rows and the index beside them.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

// The stamp of a backup that follows the first scan: its wait takes the clock to one second past.
const std::string kBackup = kProgramFolder + "\\backup\\junk\\21_11_2026_10.00.01";

struct Backup : ScanFixture {
  Form7& scan() {
    Form7& form = start();
    form.cmd_start.click();
    return form;
  }
  static void tick_all(Form7& form) {
    for (int row = 1; row <= form.view1.count(); ++row) form.view1.set_checked(row, true);
  }
};

TEST(Backup, NotesFolderNameAndPathOfEachFileWithoutQuotes) {
  Backup backup;
  backup.machine.add_text_file("C:\\Windows\\Temp\\a.tmp", "a");
  backup.machine.add_text_file("C:\\Windows\\Temp\\with, comma\\b,c.tmp", "b");
  Form7& form = backup.scan();
  Backup::tick_all(form);

  form.Command14.click();

  EXPECT_EQ(backup.machine.file_text(kBackup + ".txt"),
            "C:\\Windows\\Temp\\with, comma\\,b,c.tmp,"
            "C:\\Windows\\Temp\\with, comma\\b,c.tmp\r\n"
            "C:\\Windows\\Temp\\,a.tmp,C:\\Windows\\Temp\\a.tmp\r\n");
  EXPECT_EQ(backup.machine.file_text(kBackup + "\\a.tmp"), "a");
  EXPECT_EQ(backup.machine.file_text(kBackup + "\\b,c.tmp"), "b");
}

TEST(Backup, TheIndexIsInTheSystemsCodePage) {
  Backup backup;
  backup.machine.add_text_file("C:\\Windows\\Temp\\Gr\u00F6\u00DFe.tmp", "a");
  Form7& form = backup.scan();
  Backup::tick_all(form);
  form.Command14.click();
  EXPECT_EQ(backup.machine.file_text(kBackup + ".txt"),
            "C:\\Windows\\Temp\\,Gr\xF6\xDF"
            "e.tmp,C:\\Windows\\Temp\\Gr\xF6\xDF"
            "e.tmp\r\n");
  EXPECT_EQ(backup.machine.file_text(kBackup + "\\Gr\u00F6\u00DFe.tmp"), "a");
}

TEST(Backup, TheLaterOfTwoFilesOfOneNameWins) {
  Backup backup;
  backup.machine.add_text_file("C:\\Windows\\Temp\\first\\a.tmp", "1st");
  backup.machine.add_text_file("C:\\Windows\\Temp\\second\\a.tmp", "second");
  Form7& form = backup.scan();
  Backup::tick_all(form);

  form.Command14.click();

  EXPECT_EQ(backup.machine.file_text(kBackup + "\\a.tmp"), "second");
  EXPECT_EQ(form.txtfilecont.text(), "2");
  EXPECT_EQ(form.txtfilesize.text(), "9");
}

TEST(Backup, AFileThatCannotBeCopiedIsNotedAndCountedAllTheSame) {
  Backup backup;
  backup.machine.add_text_file("C:\\Windows\\Temp\\gone.tmp", "12345");
  backup.machine.add_text_file("C:\\Windows\\Temp\\here.tmp", "123");
  Form7& form = backup.scan();
  Backup::tick_all(form);
  ASSERT_EQ(backup.machine.platform().files.remove_file("C:\\Windows\\Temp\\gone.tmp"),
            RemoveResult::kRemoved);

  form.Command14.click();

  EXPECT_EQ(backup.machine.file_text(kBackup + ".txt"),
            "C:\\Windows\\Temp\\,gone.tmp,C:\\Windows\\Temp\\gone.tmp\r\n"
            "C:\\Windows\\Temp\\,here.tmp,C:\\Windows\\Temp\\here.tmp\r\n");
  EXPECT_FALSE(backup.machine.has_file(kBackup + "\\gone.tmp"));
  EXPECT_TRUE(backup.machine.has_file(kBackup + "\\here.tmp"));
  EXPECT_EQ(form.txtfilecont.text(), "2");
  EXPECT_EQ(form.txtfilesize.text(), "3");  // no length can be read of the file that has gone
}

TEST(Backup, ItsBarRunsFromTheFirstRowToTheLast) {
  Backup backup;
  for (const char* name : {"a", "b", "c"}) {
    backup.machine.add_file(std::string("C:\\Windows\\Temp\\") + name);
  }
  Form7& form = backup.scan();
  form.Command14.click();
  EXPECT_EQ(form.Bar2.minimum(), 1);
  EXPECT_EQ(form.Bar2.maximum(), 3);
  EXPECT_EQ(form.Bar2.value(), 3);
  EXPECT_FALSE(form.Bar2.visible());
}

}  // namespace
}  // namespace quillvane
