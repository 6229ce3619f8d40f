// The user's own entries as the last group of the junk scan.
#include <gtest/gtest.h>

#include <string>

#include "scan/catalogue.h"
#include "tests/support/search_fixture.h"

namespace quillvane {
namespace {

constexpr int kFirst = kFirstCustomLeaf;

std::string text_of(const Form7& form, int node) { return form.Tv1.node(node).text; }

// A machine with files of 1000 bytes.
struct Entries : SearchFixture {
  Entries(const std::vector<std::string>& lines, const Texts& files) {
    add_entries(lines);
    for (const std::string& path : files) machine.add_file(path, 1000);
  }
  // After a whole scan.
  Form7& scanned() {
    Form7& form = start();
    form.cmd_start.click();
    return form;
  }
};

TEST(Searchcustom, EachLineIsANodeWithItsOwnCount) {
  Entries fixture(
      {"Logs|C:\\L|*.log,*.etl||0", "", "Old|C:\\O|*.*||1"},
      {"C:\\L\\a.log", "C:\\L\\b.etl", "C:\\L\\c.txt", "C:\\L\\s\\d.log", "C:\\O\\s\\e"});
  const Form7& form = fixture.scanned();
  EXPECT_EQ(rows_of(form.view1, kFirst), (Texts{"C:\\L\\a.log", "C:\\L\\b.etl"}));
  EXPECT_EQ(rows_of(form.view1, kFirst + 1), Texts{"C:\\O\\s\\e"});
  EXPECT_EQ(text_of(form, kFirst), "Logs ( 2 files, 2 KB )");
  EXPECT_EQ(text_of(form, kFirst + 1), "Old ( 1 files, 1000 B )");
  EXPECT_EQ(text_of(form, kCustomNode), "Custom Files and Folders ( 3 files, 2.9 KB )");
  EXPECT_EQ(form.Tv1.node(kFirst).fore_color, kDarkRed);
  EXPECT_EQ(form.totals.custfiles, 3);
  EXPECT_EQ(form.totals.custsize, 3000);
  EXPECT_EQ(form.totals.totalfiles, 3);
  EXPECT_EQ(form.totals.totalsize, 3000);
  EXPECT_EQ(form.txtfilecont.text(), "3");
  EXPECT_EQ(form.txtfilesize.text(), "3000");
  EXPECT_EQ(form.node_totals(kFirst).files, 2);
  EXPECT_EQ(form.node_totals(kCustomNode).bytes, 3000);
  EXPECT_EQ(form.custnode, kFirst + 2);
  EXPECT_EQ(form.foundcount, 0);
}

TEST(Searchcustom, WithoutAFileTheGroupStaysAsItWasBuilt) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(text_of(form, kCustomNode), "Custom Files and Folders");
  EXPECT_EQ(form.totals.totalfiles, 0);
  // The ignore list ceases to apply all the same.
  EXPECT_EQ(form.ignorelist.text(), "0");
}

TEST(Searchcustom, AnEmptyFileIsAGroupOfNothing) {
  Entries fixture({}, {});
  EXPECT_EQ(text_of(fixture.scanned(), kCustomNode), "Custom Files and Folders ( 0 files, 0 B )");
}

TEST(Searchcustom, AnEntryWithoutAHitIsBlack) {
  Entries fixture({"Logs|C:\\L|*.log||0"}, {});
  const Form7& form = fixture.scanned();
  EXPECT_EQ(text_of(form, kFirst), "Logs ( 0 files, 0 B )");
  EXPECT_EQ(form.Tv1.node(kFirst).fore_color, 0U);
}

TEST(Searchcustom, ALineWithTooFewFieldsGoesOnWithEmptyOnes) {
  Entries fixture({"Name alone", "No patterns|C:\\L", "Flat|C:\\L|*.log"},
                  {"C:\\L\\a.log", "C:\\L\\s\\b.log", "C:\\root.log"});
  const Form7& form = fixture.scanned();
  EXPECT_EQ(text_of(form, kFirst), "Name alone ( 0 files, 0 B )");
  EXPECT_EQ(text_of(form, kFirst + 1), "No patterns ( 0 files, 0 B )");
  EXPECT_EQ(text_of(form, kFirst + 2), "Flat ( 1 files, 1000 B )");
  EXPECT_EQ(form.List6.count(), 0);
}

TEST(Searchcustom, AnEmptyFolderIsNotTheRootOfADrive) {
  Entries fixture({"Empty||*.*||1", "Blank|  |*.*||1", "Root|\\|*.*||1"}, {"C:\\a.doc"});
  const Form7& form = fixture.scanned();
  EXPECT_EQ(form.totals.custfiles, 0);
  EXPECT_EQ(form.view1.count(), 0);
}

TEST(Searchcustom, NamesToLeaveOutCountForTheLinesBehindToo) {
  Entries fixture(
      {"One|C:\\L|*.*|*.BAK, secret.txt |0", "Two|C:\\O|*.*||0"},
      {"C:\\L\\a.bak", "C:\\L\\Secret.txt", "C:\\L\\b.doc", "C:\\O\\c.bak", "C:\\O\\d.doc"});
  const Form7& form = fixture.scanned();
  EXPECT_EQ(rows_of(form.view1, kFirst), Texts{"C:\\L\\b.doc"});
  EXPECT_EQ(rows_of(form.view1, kFirst + 1), Texts{"C:\\O\\d.doc"});
  EXPECT_EQ(form.List6.items(), (Texts{"*.bak", "secret.txt"}));
}

TEST(Searchcustom, AQueuedFileIsListedWithAndWithoutANameThatFits) {
  Entries fixture({"One|C:\\L|*.*||0", "Two|C:\\L|*.*|*.bak|0"}, {"C:\\L\\a.bak"});
  fixture.machine.set_registry_strings(Hive::kLocalMachine,
                                       "SYSTEM\\CurrentControlSet\\Control\\Session Manager",
                                       "PendingFileRenameOperations", {"\\??\\C:\\L\\a.bak", ""});
  const Form7& form = fixture.scanned();
  EXPECT_EQ(rows_of(form.view1, kFirst), Texts{"C:\\L\\a.bak"});
  EXPECT_EQ(rows_of(form.view1, kFirst + 1), Texts{"C:\\L\\a.bak"});
}

TEST(Searchcustom, TheIgnoreListDoesNotApplyHere) {
  Entries fixture({"One|C:\\L|*.*|nothing|0"}, {"C:\\L\\a.doc"});
  fixture.add_program_file("ignore.tdw", "C:\\x\\\r\nC:\\L\\\r\n");
  const Form7& form = fixture.scanned();
  EXPECT_EQ(rows_of(form.view1, kFirst), Texts{"C:\\L\\a.doc"});
  EXPECT_EQ(form.ignorelist.text(), "0");
}

TEST(Searchcustom, ACancelledEntryKeepsItsCaptionAndAddsNothing) {
  Entries fixture({"One|C:\\L|*.*||0", "Two|C:\\O|*.*||0", "Three|C:\\P|*.*||0"},
                  {"C:\\L\\a", "C:\\O\\b", "C:\\P\\c"});
  Form7& form = fixture.start();
  fixture.when([&] { return form.Label5.caption() == "C:\\O\\"; }, [&] { form.cancelflag = 1; });
  form.cmd_start.click();
  EXPECT_EQ(text_of(form, kFirst + 1), "Two ( 1 files, 1000 B )");
  EXPECT_EQ(text_of(form, kFirst + 2), "Three");
  EXPECT_EQ(text_of(form, kCustomNode), "Custom Files and Folders ( 1 files, 1000 B )");
  EXPECT_EQ(form.totals.totalfiles, 1);
  EXPECT_EQ(form.custnode, kFirst + 1);
}

TEST(Searchcustom, ASecondRunAddsATailToTheEntriesAlone) {
  Entries fixture({"One|C:\\L|*.*||0"}, {"C:\\L\\a"});
  Form7& form = fixture.start();
  form.searchcustom();
  form.searchcustom();
  EXPECT_EQ(text_of(form, kFirst), "One ( 1 files, 1000 B ) ( 1 files, 1000 B )");
  EXPECT_EQ(text_of(form, kCustomNode), "Custom Files and Folders ( 1 files, 1000 B )");
}

TEST(Searchcustom, AFileThatTwoPatternsMatchCountsOnce) {
  Entries fixture({"One|C:\\L|*.log,a*.*||0"}, {"C:\\L\\a.log"});
  EXPECT_EQ(fixture.scanned().totals.custfiles, 1);
}

// --- Scans of the group.

TEST(Searchcustom, AScanOfOneEntryRunsThemAllAndKeepsItsShareOfTheTotals) {
  Entries fixture({"One|C:\\L|*.*||0", "Two|C:\\O|*.*||0"}, {"C:\\L\\a", "C:\\O\\b"});
  Form7& form = fixture.start();
  form.Tv1.click_node(kFirst + 1);
  form.scf.click();
  EXPECT_EQ(rows_of(form.view1, kFirst), Texts{"C:\\L\\a"});
  EXPECT_EQ(rows_of(form.view1, kFirst + 1), Texts{"C:\\O\\b"});
  EXPECT_EQ(form.totals.totalfiles, 2);
  EXPECT_EQ(form.totals.totalsize, 2000);
  EXPECT_EQ(rows(form.view5), Texts{"C:\\O\\b"});
}

TEST(Searchcustom, TheCleaningsRescanRunsTheEntries) {
  Entries fixture({"One|C:\\L|*.tmp||0"}, {"C:\\L\\a.tmp", "C:\\L\\b.doc"});
  Form7& form = fixture.start();
  form.cmd_start.click();
  fixture.machine.dialogs().answer(Answer::kYes);
  form.cmd_clean.click();
  EXPECT_FALSE(fixture.machine.has_file("C:\\L\\a.tmp"));
  EXPECT_TRUE(fixture.machine.has_file("C:\\L\\b.doc"));
  EXPECT_EQ(text_of(form, kFirst), "One ( 0 files, 0 B )");
}

TEST(Searchcustom, TheSuiteIsToldOfTheEntriesToo) {
  Entries fixture({"One|C:\\L|*.tmp||0"}, {"C:\\L\\a.tmp"});
  fixture.start("w2-c2");
  EXPECT_EQ(fixture.program_file("junst.txt"), "1|1000\r\n");
}

}  // namespace
}  // namespace quillvane
