// The whole scan: its order, its totals, its summary, and what a cancel leaves.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

std::string summary(const std::string& files, const std::string& size) {
  return "Junk files found : ( " + files + " ) files , Size : ( " + size +
         " ) - Click \"Start Cleaning\" to Remove selected Files";
}

// --- Results.

TEST(Autosearch, ListsTheFilesOfAllCategoriesInTheirOrder) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();

  form.cmd_start.click();

  EXPECT_EQ(rows(form.view1), fixture.junk);
  EXPECT_EQ(rows(form.view1, kCategoryColumn),
            (Texts{"2", "3", "4", "6", "7", "8", "9", "10", "11", "13"}));
}

TEST(Autosearch, TheSummaryTellsCountAndBytes) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(form.Label11.caption(), summary("11", "110 B"));
  EXPECT_EQ(form.txtfilecont.text(), "11");
  EXPECT_EQ(form.txtfilesize.text(), "110");
}

TEST(Autosearch, RollsTheGroupsUpIntoTheTotals) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(form.totals.winfiles, 10);
  EXPECT_EQ(form.totals.winsize, 100);
  EXPECT_EQ(form.totals.brfiles, 1);
  EXPECT_EQ(form.totals.brsize, 10);
  EXPECT_EQ(form.totals.totalfiles, 11);
  EXPECT_EQ(form.totals.totalsize, 110);
}

TEST(Autosearch, WritesEachResultOnItsNode) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(form.Tv1.node(1).text, "Windows ( 10 files, 100 B )");
  EXPECT_EQ(form.Tv1.node(2).text, "System Temporary ( 1 files, 10 B )");
  EXPECT_EQ(form.Tv1.node(5).text, "Memory Dump Files ( 0 files, 0 Byte )");
  EXPECT_EQ(form.Tv1.node(12).text, "Browsers ( 1 files, 10 B )");
  EXPECT_EQ(form.Tv1.node(23).text, "UC Browser ( 0 files, 0 B )");
  EXPECT_EQ(form.Tv1.node(24).text, "Custom Files and Folders");
  EXPECT_EQ(form.Tv1.selected(), 1);
}

TEST(Autosearch, CopiesAllRowsIntoTheResultPageWithoutTicks) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(rows(form.view5), fixture.junk);
  EXPECT_EQ(rows(form.view5, kCategoryColumn), rows(form.view1, kCategoryColumn));
  EXPECT_EQ(ticked(form.view5), std::vector<int>{});
}

TEST(Autosearch, SaysZeroWhenNothingIsFound) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(form.Label11.caption(), summary("0", "0 B"));
  EXPECT_EQ(form.Tv1.node(1).text, "Windows ( 0 files, 0 B )");
  EXPECT_FALSE(form.cmd_report.enabled());
}

TEST(Autosearch, AScanDoesNotAddToTheOneBefore) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  form.cmd_start.click();
  EXPECT_EQ(rows(form.view1), fixture.junk);
  EXPECT_EQ(form.Label11.caption(), summary("11", "110 B"));
  EXPECT_EQ(form.Tv1.node(1).text, "Windows ( 10 files, 100 B )");
  EXPECT_EQ(form.txtfilecont.text(), "11");
}

TEST(Autosearch, ASizeThatReadsAsNegativeIsShownInBytes) {
  ScanFixture fixture;
  fixture.machine.add_file("C:\\Windows\\Temp\\big.bin", 3'221'225'472);
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(form.Label11.caption(), summary("1", "-1073741824 B"));
  EXPECT_EQ(form.txtfilesize.text(), "-1073741824");
  EXPECT_TRUE(form.cmd_report.enabled());
}

// --- The run.

// The nodes that turn green, in order.
class GreenNodes final : public ControlObserver {
 public:
  explicit GreenNodes(TreeView& tree) : tree_(tree) { tree_.observe(*this); }
  ~GreenNodes() override { tree_.unobserve(*this); }
  GreenNodes(const GreenNodes&) = delete;
  GreenNodes& operator=(const GreenNodes&) = delete;

  void changed(Control&, Change what) override {
    if (what != Change::kRefresh) return;
    for (int index = 1; index <= tree_.count(); ++index) {
      if (tree_.node(index).fore_color == kGreen) nodes.push_back(index);
    }
  }

  std::vector<int> nodes;

 private:
  TreeView& tree_;
};

TEST(Autosearch, RunsTheCategoriesOneAfterTheOther) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  const GreenNodes green(form.Tv1);

  form.cmd_start.click();

  std::vector<int> expected = numbers_from(2, 11);
  for (const int browser : numbers_from(13, 23)) expected.push_back(browser);
  EXPECT_EQ(green.nodes, expected);
}

TEST(Autosearch, ClearsTheOldResultAndShowsThatItRuns) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  bool looked = false;
  fixture.at_serving(1, [&] {
    looked = true;
    EXPECT_EQ(form.view1.count(), 0);
    EXPECT_EQ(form.view5.count(), 0);
    EXPECT_EQ(form.txtfilecont.text(), "0");
    EXPECT_EQ(form.txtfilesize.text(), "0");
    EXPECT_TRUE(form.Text13.visible());
    EXPECT_TRUE(form.Gif89a2.visible());
  });

  form.cmd_start.click();

  EXPECT_TRUE(looked);
  EXPECT_FALSE(form.Text13.visible());
  EXPECT_FALSE(form.Gif89a2.visible());
}

TEST(Autosearch, LooksAtTheFirstFileASecondAfterTheClick) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();
  const FileTime click = fixture.machine.loop().local_now();
  FileTime first_file;
  form.Text13.on_change = [&] {
    if (first_file == FileTime{}) first_file = fixture.machine.loop().local_now();
  };
  form.cmd_start.click();
  constexpr std::int64_t kTicksPerMillisecond = 10'000;
  EXPECT_EQ((first_file.ticks - click.ticks) / kTicksPerMillisecond, 1001);
}

TEST(Autosearch, ShowsTheResultPage) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.Frame80.hide();
  form.Frame2.move(120, 900);
  for (Frame* page : {&form.Frame2, &form.Frame4, &form.Frame6, &form.Frame8}) page->show();

  form.cmd_start.click();

  EXPECT_TRUE(form.Frame80.visible());
  EXPECT_EQ(form.Frame80.left(), 120);
  EXPECT_EQ(form.Frame80.top(), 900);
  for (const Frame* page : {&form.Frame2, &form.Frame4, &form.Frame6, &form.Frame8}) {
    EXPECT_FALSE(page->visible()) << page->name();
  }
  EXPECT_TRUE(form.view1.visible());
}

TEST(Autosearch, TheMarkTellsWhetherSomethingWasFound) {
  for (const bool junk : {false, true}) {
    ScanFixture fixture;
    if (junk) fixture.machine.add_file("C:\\Windows\\Temp\\a.tmp", 10);
    Form7& form = fixture.start();
    form.Shape2.set_back_color(77);
    Color at_start = 0;
    fixture.at_serving(1, [&] { at_start = form.Shape1.back_color(); });

    form.cmd_start.click();

    EXPECT_EQ(at_start, 77U);
    EXPECT_EQ(form.Shape1.back_color(), junk ? 128U : 77U);
    EXPECT_EQ(form.cmd_report.enabled(), junk);
  }
}

TEST(Autosearch, DoesNotListWhatIsQueuedForTheRestart) {
  ScanFixture fixture;
  fixture.machine.add_file("C:\\Windows\\Temp\\A.tmp", 10);
  fixture.machine.add_file("C:\\Windows\\Temp\\b.tmp", 10);
  fixture.machine.set_registry_strings(
      Hive::kLocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Session Manager",
      "PendingFileRenameOperations", {"\\??\\C:\\Windows\\Temp\\a.tmp", ""});
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(rows(form.view1), (Texts{"C:\\Windows\\Temp\\b.tmp"}));
}

TEST(Autosearch, ChangesNoFile) {
  JunkEverywhere fixture;
  fixture.start().cmd_start.click();
  for (const std::string& path : fixture.junk) EXPECT_TRUE(fixture.machine.has_file(path)) << path;
  EXPECT_FALSE(fixture.machine.has_file(kProgramFolder + "\\junst.txt"));
}

// --- The result file.

struct ResultCase {
  int cleanmode;
  bool written;
};

TEST(ResultFile, IsWrittenInCleanmode2Only) {
  for (const auto& [cleanmode, written] : {ResultCase{0, false}, {1, false}, {2, true}}) {
    JunkEverywhere fixture;
    Form7& form = fixture.start();
    form.session.cleanmode = cleanmode;
    form.autosearch();
    EXPECT_EQ(fixture.program_file("junst.txt").has_value(), written) << cleanmode;
  }
}

TEST(ResultFile, HoldsCountAndBytesInOneLine) {
  JunkEverywhere fixture;
  fixture.add_program_file("junst.txt", "an older and much longer result\r\nof two lines\r\n");
  fixture.start("w2-c2");
  EXPECT_EQ(fixture.program_file("junst.txt"), "11|110\r\n");
}

TEST(ResultFile, IsWrittenWithoutAnyJunkToo) {
  ScanFixture fixture;
  fixture.start("w2-c2");
  EXPECT_EQ(fixture.program_file("junst.txt"), "0|0\r\n");
}

TEST(ResultFile, OneThatCannotBeWrittenDoesNotStopTheRun) {
  JunkEverywhere fixture;
  fixture.add_program_file("junst.txt", "old");
  fixture.machine.machine().add_in_use(kProgramFolder + "\\junst.txt");
  const Form7& form = fixture.start("w2-c2");
  EXPECT_TRUE(fixture.program->ended());
  EXPECT_EQ(form.Label11.caption(), summary("11", "110 B"));
  EXPECT_EQ(fixture.program_file("junst.txt"), "old");
}

// --- Closing.

TEST(ClosedWindow, GivesTheScanUpAndAsksNothing) {
  JunkEverywhere fixture;
  fixture.machine.machine().add_process(7, "chrome.exe");
  Form7& form = fixture.start();
  fixture.when([&form] { return form.view1.count() == 1; }, [&form] { form.close(); });

  form.cmd_start.click();

  EXPECT_TRUE(fixture.program->ended());
  EXPECT_EQ(rows(form.view1), (Texts{fixture.junk[0]}));
  EXPECT_TRUE(fixture.machine.dialogs().take_boxes().empty());
}

// --- Cancelling.

// A scan that is cancelled when its first row is there, so in the first category.
struct CancelledEarly : JunkEverywhere {
  CancelledEarly() {
    machine.add_file("C:\\Windows\\Temp\\second.tmp", 10);
    Form7& form = start();
    when([&form] { return form.view1.count() == 1; }, [&form] { form.cmd_cancel.click(); });
    form.cmd_start.click();
  }
  Form7& form() { return program->main_window(); }
};

TEST(Cancel, SkipsTheRemainingWindowsCategories) {
  CancelledEarly scan;
  EXPECT_EQ(rows(scan.form().view1), (Texts{"C:\\Windows\\Temp\\a.tmp"}));
  EXPECT_EQ(scan.form().Tv1.node(2).text, "System Temporary ( 1 files, 10 B )");
  for (const int node : numbers_from(3, 11)) {
    EXPECT_EQ(scan.form().Tv1.node(node).text.find(" ("), std::string::npos) << node;
  }
}

TEST(Cancel, EntersTheFirstBrowserAndStopsAtItsFirstFile) {
  CancelledEarly scan;
  EXPECT_EQ(scan.form().Text13.text(), scan.junk.back());
  EXPECT_EQ(scan.form().Tv1.node(13).text, "Internet Explorer ( 0 files, 0 B )");
  for (const int node : numbers_from(14, 23)) {
    EXPECT_EQ(scan.form().Tv1.node(node).text.find(" ("), std::string::npos) << node;
  }
}

TEST(Cancel, TheSummaryShowsWhatWasFoundSoFar) {
  CancelledEarly scan;
  EXPECT_EQ(scan.form().Label11.caption(), summary("1", "10 B"));
  EXPECT_EQ(scan.form().Tv1.node(1).text, "Windows ( 1 files, 10 B )");
  EXPECT_EQ(scan.form().Tv1.node(12).text, "Browsers ( 0 files, 0 B )");
  EXPECT_EQ(rows(scan.form().view5), rows(scan.form().view1));
  EXPECT_EQ(scan.form().cancelflag, 1);
}

TEST(Cancel, TheNextScanRunsToItsEnd) {
  CancelledEarly scan;
  scan.form().cmd_start.click();
  EXPECT_EQ(scan.form().cancelflag, 0);
  EXPECT_EQ(scan.form().Label11.caption(), summary("12", "120 B"));
}

TEST(Cancel, AStartInsideACancelledScanNestsAWholeScan) {
  ScanFixture fixture;
  for (const char* name : {"a", "b", "c"}) {
    fixture.machine.add_file(std::string("C:\\Windows\\Temp\\") + name, 10);
  }
  Form7& form = fixture.start();
  fixture.when([&] { return form.view1.count() == 1; },
               [&] {
                 form.cmd_cancel.click();
                 form.cmd_start.click();
               });

  form.cmd_start.click();

  // The inner scan lists all three; then the outer one goes on from where it stood.
  EXPECT_EQ(rows(form.view1),
            (Texts{"C:\\Windows\\Temp\\a", "C:\\Windows\\Temp\\b", "C:\\Windows\\Temp\\c",
                   "C:\\Windows\\Temp\\b", "C:\\Windows\\Temp\\c"}));
}

}  // namespace
}  // namespace quillvane
