// The two commands of the tree's pop-up: "Scan" and "Start Cleaning" on one node.
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

const std::string kStatistics = "software\\Quillvane\\Tidewrack Deluxe\\statics\\junkfiles";

std::string summary(const std::string& files, const std::string& size) {
  return "Junk files found : ( " + files + " ) files , Size : ( " + size +
         " ) - Click \"Start Cleaning\" to Remove selected Files";
}

// A whole scan is done; it has found one file a category, 11 by its own count.
struct Scanned : JunkEverywhere {
  Scanned() { start().cmd_start.click(); }
  Form7& form() { return program->main_window(); }

  void scan_node(int node) {
    form().Tv1.click_node(node);
    form().scf.click();
  }
  // The nodes that have a result behind their caption.
  std::vector<int> nodes_with_result() {
    std::vector<int> nodes;
    for (int node = 1; node <= form().Tv1.count(); ++node) {
      if (form().Tv1.node(node).text.find(" (") != std::string::npos) nodes.push_back(node);
    }
    return nodes;
  }
  [[nodiscard]] const std::string& windows_temp_file() const { return junk.front(); }
  [[nodiscard]] const std::string& browser_file() const { return junk.back(); }
};

// --- Which node.

TEST(ScanNode, ANodeClickedInTheWaitIsTheOneThatIsScanned) {
  Scanned scan;
  scan.form().Tv1.click_node(2);
  scan.at_serving(1, [&scan] { scan.form().Tv1.click_node(13); });

  scan.form().scf.click();

  // The Windows rows are as the first scan left them; only Internet Explorer's are new and last.
  EXPECT_EQ(rows(scan.form().view1), scan.junk);
  EXPECT_EQ(scan.form().Tv1.node(2).text, "System Temporary ( 1 files, 10 B )");
  EXPECT_EQ(rows(scan.form().view5), Texts{scan.browser_file()});
  EXPECT_EQ(ticked(scan.form().view5), std::vector<int>{1});
}

TEST(ScanNode, ANodeClickedDuringTheWalkIsTheOneThatIsShown) {
  Scanned scan;
  scan.form().Tv1.click_node(2);
  scan.at_serving(2, [&scan] { scan.form().Tv1.click_node(13); });

  scan.form().scf.click();

  EXPECT_EQ(rows(scan.form().view1), (Texts{scan.browser_file(), scan.windows_temp_file()}));
  EXPECT_EQ(scan.form().selnode, 13);
  EXPECT_EQ(scan.form().Tv1.selected(), 13);
  EXPECT_EQ(rows(scan.form().view5), Texts{scan.browser_file()});
}

// --- "Scan" in the Windows group.

TEST(ScanNode, AWindowsLeafDropsTheResultsOfAllWindowsLeaves) {
  Scanned scan;
  scan.machine.add_file("C:\\Windows\\Temp\\new.tmp", 5);

  scan.scan_node(2);

  EXPECT_EQ(rows(scan.form().view1),
            (Texts{scan.browser_file(), scan.windows_temp_file(), "C:\\Windows\\Temp\\new.tmp"}));
  std::vector<int> expected{1, 2};
  for (const int node : numbers_from(12, 23)) expected.push_back(node);
  EXPECT_EQ(scan.nodes_with_result(), expected);
}

TEST(ScanNode, AWindowsLeafGivesItsNumbersToTheGroup) {
  Scanned scan;
  scan.scan_node(2);
  EXPECT_EQ(scan.form().Tv1.node(2).text, "System Temporary ( 1 files, 10 B )");
  EXPECT_EQ(scan.form().Tv1.node(1).text, "Windows ( 1 files, 10 B )");
  EXPECT_EQ(scan.form().Tv1.node(12).text, "Browsers ( 1 files, 10 B )");
  EXPECT_EQ(scan.form().totals.totalfiles, 1);
  EXPECT_EQ(scan.form().totals.totalsize, 10);
}

TEST(ScanNode, TheSummaryCountsAllRowsButOnlyTheBytesOfWindows) {
  Scanned scan;
  scan.scan_node(2);
  EXPECT_EQ(scan.form().Label11.caption(), summary("2", "10 B"));
  EXPECT_EQ(scan.form().txtfilecont.text(), "2");
  EXPECT_EQ(scan.form().txtfilesize.text(), "10");
}

TEST(ScanNode, TheWindowsGroupRunsAllItsCategories) {
  Scanned scan;
  scan.scan_node(1);
  Texts expected(scan.junk.begin(), scan.junk.end() - 1);
  expected.insert(expected.begin(), scan.browser_file());
  EXPECT_EQ(rows(scan.form().view1), expected);
  EXPECT_EQ(scan.form().Tv1.node(1).text, "Windows ( 10 files, 100 B )");
  EXPECT_EQ(scan.form().Label11.caption(), summary("10", "100 B"));
}

TEST(ScanNode, TheWindowsGroupGoesThroughAllCategoriesAfterACancel) {
  Scanned scan;
  scan.when([&] { return scan.form().view1.count() == 2; }, [&] { scan.form().cancelflag = 1; });
  scan.scan_node(1);
  EXPECT_EQ(rows(scan.form().view1), (Texts{scan.browser_file(), scan.windows_temp_file()}));
  EXPECT_EQ(scan.form().Tv1.node(11).text, "Windows History ( 0 files, 0 B )");
}

// --- "Scan" in the Browsers group.

TEST(ScanNode, ABrowserLeavesTheRowsOfWindows) {
  Scanned scan;
  scan.scan_node(13);
  EXPECT_EQ(rows(scan.form().view1), scan.junk);
  EXPECT_EQ(scan.form().Tv1.node(13).text, "Internet Explorer ( 1 files, 10 B )");
  EXPECT_EQ(scan.form().Tv1.node(12).text, "Browsers ( 1 files, 10 B )");
  EXPECT_EQ(scan.form().Tv1.node(1).text, "Windows ( 10 files, 100 B )");
}

TEST(ScanNode, AfterABrowserTheTotalsShowWindowsOnly) {
  Scanned scan;
  scan.scan_node(13);
  EXPECT_EQ(scan.form().totals.totalfiles, 10);
  EXPECT_EQ(scan.form().totals.totalsize, 100);
  EXPECT_EQ(scan.form().Label11.caption(), summary("10", "100 B"));
}

TEST(ScanNode, ABrowserResetsNodes12To16AndDropsRows13To16) {
  Scanned scan;
  for (const int category : numbers_from(14, 23)) {
    add_hit(scan.form().view1, "C:\\hit" + std::to_string(category), category);
  }

  scan.scan_node(20);

  std::vector<int> expected = numbers_from(1, 12);
  for (const int node : numbers_from(17, 23)) expected.push_back(node);
  EXPECT_EQ(scan.nodes_with_result(), expected);
  EXPECT_EQ(rows_of(scan.form().view1, 13), Texts{});
  EXPECT_EQ(rows_of(scan.form().view1, 16), Texts{});
  EXPECT_EQ(rows_of(scan.form().view1, 17), Texts{"C:\\hit17"});
  EXPECT_EQ(rows_of(scan.form().view1, 20), Texts{});
  EXPECT_EQ(rows_of(scan.form().view1, 23), Texts{"C:\\hit23"});
}

TEST(ScanNode, TheBrowsersGroupAsksNoQuestionWhileABrowserRuns) {
  Scanned scan;
  scan.machine.machine().add_process(7, "iexplore.exe");
  scan.scan_node(12);
  EXPECT_EQ(scan.machine.dialogs().take_boxes(), std::vector<ShownBox>{});
  EXPECT_EQ(rows_of(scan.form().view1, 13), Texts{scan.browser_file()});
  EXPECT_EQ(scan.form().Tv1.node(23).text.substr(0, 12), "UC Browser (");
  EXPECT_EQ(scan.form().Tv1.node(12).text, "Browsers ( 1 files, 10 B )");
}

TEST(ScanNode, ACancelEndsTheRowOfBrowsers) {
  Scanned scan;
  scan.when([&] { return scan.form().Text13.visible() && scan.form().view1.count() == 9; },
            [&] { scan.form().cmd_cancel.click(); });
  scan.scan_node(12);
  EXPECT_EQ(scan.form().Tv1.node(13).text, "Internet Explorer ( 0 files, 0 B )");
  EXPECT_EQ(scan.form().Tv1.node(14).text, "Mozila Firefox Cache");
  EXPECT_EQ(scan.form().Tv1.node(12).text, "Browsers ( 0 files, 0 B )");
}

// --- "Scan" of custom entries.

TEST(ScanNode, CustomEntriesResetNodesFrom17AndDropTheRowsBehindTheirs) {
  Scanned scan;
  for (const int category : {17, 23, 25, 26}) {
    add_hit(scan.form().view1, "C:\\hit" + std::to_string(category), category);
  }

  scan.scan_node(24);

  for (const int node : numbers_from(1, 16)) {
    EXPECT_NE(scan.form().Tv1.node(node).text.find(" ("), std::string::npos) << node;
  }
  for (const int node : numbers_from(17, 23)) {
    EXPECT_EQ(scan.form().Tv1.node(node).text.find(" ("), std::string::npos) << node;
  }
  EXPECT_EQ(rows_of(scan.form().view1, 17), Texts{"C:\\hit17"});
  EXPECT_EQ(rows_of(scan.form().view1, 23), Texts{"C:\\hit23"});
  EXPECT_EQ(rows_of(scan.form().view1, 25), Texts{});
  EXPECT_EQ(rows_of(scan.form().view1, 26), Texts{});
}

TEST(ScanNode, ACaptionThatHoldsABracketLosesItsTail) {
  ScanFixture fixture;
  fixture.add_program_file("custom.tdw", "Docs (old)|C:\\Docs|*.tmp||0\r\n");
  Form7& form = fixture.start();
  EXPECT_EQ(form.Tv1.node(25).text, "Docs (old)");
  form.Tv1.click_node(25);
  form.scf.click();
  EXPECT_EQ(form.Tv1.node(25).text.substr(0, 4), "Docs");
  EXPECT_EQ(form.Tv1.node(25).text.find("(old)"), std::string::npos);
}

// --- "Scan", whatever the node.

TEST(ScanNode, ShowsTheRowsOfTheNodeAndTicksThem) {
  Scanned scan;
  scan.machine.add_file("C:\\Windows\\Temp\\new.tmp", 5);
  scan.scan_node(2);
  EXPECT_EQ(rows(scan.form().view5),
            (Texts{scan.windows_temp_file(), "C:\\Windows\\Temp\\new.tmp"}));
  EXPECT_EQ(ticked(scan.form().view5), (std::vector{1, 2}));
  EXPECT_EQ(scan.form().Tv1.selected(), 2);
}

TEST(ScanNode, BeginsAsAnyScanAndAfterASecond) {
  Scanned scan;
  scan.form().cancelflag = 1;
  bool looked = false;
  scan.at_serving(1, [&] {
    looked = true;
    const Form7& form = scan.form();
    EXPECT_EQ(form.cancelflag, 0);
    EXPECT_EQ(form.txtfilecont.text(), "0");
    EXPECT_EQ(form.totals.totalfiles, 0);
    EXPECT_TRUE(form.Text13.visible());
    EXPECT_TRUE(form.Gif89a2.visible());
    EXPECT_FALSE(form.cmd_start.enabled());
    EXPECT_TRUE(form.cmd_cancel.enabled());
    for (const Button* button : {&form.cmd_clean, &form.cmd_all, &form.cmd_non, &form.cmd_custom}) {
      EXPECT_FALSE(button->enabled()) << button->name();
    }
    EXPECT_TRUE(form.cmd_ignore.enabled());
  });
  const FileTime click = scan.machine.loop().local_now();

  scan.scan_node(2);

  EXPECT_TRUE(looked);
  EXPECT_EQ((scan.machine.loop().local_now().ticks - click.ticks) / 10'000, 1001);
}

TEST(ScanNode, EndsWithTheResultsOffered) {
  Scanned scan;
  scan.scan_node(2);
  const Form7& form = scan.form();
  for (const Button* button : {&form.cmd_start, &form.cmd_clean, &form.cmd_all, &form.cmd_non,
                               &form.cmd_custom, &form.cmd_report}) {
    EXPECT_TRUE(button->enabled()) << button->name();
  }
  EXPECT_FALSE(form.cmd_cancel.enabled());
  EXPECT_FALSE(form.Gif89a2.visible());
  EXPECT_FALSE(form.Text13.visible());
  EXPECT_EQ(form.Shape1.back_color(), 128U);
}

TEST(ScanNode, TakesTheReportBackWhenWindowsHasNothing) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  form.cmd_report.set_enabled(true);
  form.Tv1.click_node(9);
  form.scf.click();
  EXPECT_FALSE(form.cmd_report.enabled());
  EXPECT_EQ(form.Label11.caption(), summary("0", "0 B"));
}

TEST(ScanNode, WritesTheResultFileInCleanmode2Only) {
  for (const int cleanmode : {0, 1, 2}) {
    Scanned scan;
    scan.form().cleanmode = cleanmode;
    scan.scan_node(2);
    EXPECT_EQ(scan.program_file("junst.txt"),
              cleanmode == 2 ? std::optional<std::string>("1|10\r\n") : std::nullopt)
        << cleanmode;
  }
}

// --- "Start Cleaning". Row n of the list is of category n, and its file is C:\hits\n.tmp.

struct WithHits : JunkEverywhere {
  WithHits() {
    add_program_file("custom.tdw", "Docs|C:\\NoSuchFolder\r\nMail|C:\\NoSuchFolder\r\n");
    for (const int category : numbers_from(2, 26)) machine.add_file(hit(category), 10);
    Form7& form = start();
    for (const int category : numbers_from(2, 26)) add_hit(form.view1, hit(category), category);
  }
  static std::string hit(int category) { return "C:\\hits\\" + std::to_string(category) + ".tmp"; }
  Form7& form() { return program->main_window(); }

  void clean_node(int node) {
    form().Tv1.click_node(node);
    form().stc.click();
  }
  // The categories whose files are gone.
  std::vector<int> gone() {
    std::vector<int> categories;
    for (const int category : numbers_from(2, 26)) {
      if (!machine.has_file(hit(category))) categories.push_back(category);
    }
    return categories;
  }
};

TEST(CleanNode, EachNodeHasItsRowsInScope) {
  struct Case {
    int node;
    std::vector<int> gone;
  };
  const Case cases[] = {
      {1, numbers_from(2, 11)},
      {12, numbers_from(13, 16)},
      {17, numbers_from(18, 26)},  // all above it and not its own: kept from a shorter catalogue
      {4, {4}},
      {13, {13}},
      {2, {2}},
      {16, {16}},
      {18, {18}},
      {24, {24}},
      {26, {26}},
  };
  for (const auto& [node, gone] : cases) {
    WithHits staged;
    staged.clean_node(node);
    EXPECT_EQ(staged.gone(), gone) << node;
  }
}

TEST(CleanNode, AsksNoQuestion) {
  WithHits staged;
  staged.clean_node(2);
  EXPECT_EQ(staged.machine.dialogs().take_boxes(), std::vector<ShownBox>{});
}

TEST(CleanNode, RemovesAReadOnlyFile) {
  WithHits staged;
  FileSystem& files = staged.program->platform.files;
  EXPECT_TRUE(files.set_attributes(WithHits::hit(5), kAttributeReadOnly | kAttributeHidden));
  staged.clean_node(5);
  EXPECT_EQ(staged.gone(), std::vector{5});
}

TEST(CleanNode, PassesOverAFileInUse) {
  Scanned scan;
  scan.machine.add_file("C:\\Windows\\Temp\\second.tmp", 10);
  scan.form().cmd_start.click();
  scan.machine.machine().add_in_use(scan.windows_temp_file());

  scan.form().Tv1.click_node(2);
  scan.form().stc.click();

  EXPECT_FALSE(scan.machine.has_file("C:\\Windows\\Temp\\second.tmp"));
  EXPECT_EQ(rows_of(scan.form().view1, 2), Texts{scan.windows_temp_file()});
}

TEST(CleanNode, AddsTheWholeScanToTheStatistics) {
  struct Case {
    std::optional<std::string> count_before;
    std::string count_after;
    std::string size_after;
  };
  const Case cases[] = {{std::nullopt, "11", "110"}, {"5", "16", "210"}};
  for (const Case& statistics : cases) {
    Scanned scan;  // 11 files and 110 bytes
    if (statistics.count_before) {
      scan.machine.set_registry_text(Hive::kLocalMachine, kStatistics, "count",
                                     *statistics.count_before);
      scan.machine.set_registry_text(Hive::kLocalMachine, kStatistics, "size", "100");
    }
    scan.form().Tv1.click_node(2);
    scan.form().stc.click();
    const auto value = [&](const std::string& name) {
      return scan.machine.registry_text(Hive::kLocalMachine, kStatistics, name);
    };
    EXPECT_EQ(value("count"), statistics.count_after);
    EXPECT_EQ(value("size"), statistics.size_after);
  }
}

TEST(CleanNode, IsFollowedByAWholeScan) {
  WithHits staged;
  staged.form().cancelflag = 1;
  staged.clean_node(3);
  EXPECT_EQ(rows(staged.form().view1), staged.junk);
  EXPECT_EQ(staged.form().Label11.caption(), summary("11", "110 B"));
  EXPECT_EQ(staged.form().txtfilecont.text(), "11");
  EXPECT_EQ(staged.form().Tv1.node(1).text, "Windows ( 10 files, 100 B )");
  EXPECT_EQ(staged.form().Tv1.selected(), 1);
}

TEST(CleanNode, ShowsNoRowsUntilANodeIsClicked) {
  WithHits staged;
  staged.clean_node(3);
  EXPECT_EQ(staged.form().view5.count(), 0);
  staged.form().Tv1.click_node(2);
  EXPECT_EQ(rows(staged.form().view5), Texts{staged.junk.front()});
}

TEST(CleanNode, WaitsASecondWithTheScanOffered) {
  WithHits staged;
  bool looked = false;
  staged.at_serving(1, [&] {
    looked = true;
    const Form7& form = staged.form();
    EXPECT_EQ(form.view1.count(), 0);
    EXPECT_EQ(form.txtfilecont.text(), "0");
    EXPECT_TRUE(form.Text13.visible());
    EXPECT_TRUE(form.Gif89a2.visible());
    EXPECT_FALSE(form.cmd_start.enabled());
    EXPECT_TRUE(form.cmd_cancel.enabled());
    EXPECT_FALSE(form.cmd_clean.enabled());
  });
  staged.clean_node(3);
  EXPECT_TRUE(looked);
}

TEST(CleanNode, EndsWithTheResultsOffered) {
  WithHits staged;
  staged.clean_node(3);
  const Form7& form = staged.form();
  for (const Button* button : {&form.cmd_start, &form.cmd_clean, &form.cmd_all, &form.cmd_non,
                               &form.cmd_custom, &form.cmd_report}) {
    EXPECT_TRUE(button->enabled()) << button->name();
  }
  EXPECT_FALSE(form.cmd_cancel.enabled());
  EXPECT_FALSE(form.Gif89a2.visible());
  EXPECT_FALSE(form.Text13.visible());
  EXPECT_EQ(form.Shape1.back_color(), 128U);
}

}  // namespace
}  // namespace quillvane
