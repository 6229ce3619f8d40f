#include "view/console/scan/scan_progress.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

TEST(ScanProgress, TellsWhatWasFoundUntilNowAndWhere) {
  ScanFixture fixture;
  fixture.machine.add_file("C:\\Windows\\Temp\\a.tmp", 1024);
  fixture.machine.add_file("C:\\Windows\\Temp\\b.tmp", 512);
  fixture.machine.add_file("C:\\Windows\\Temp\\c.tmp", 1);
  Form7& form = fixture.start();
  Texts lines;
  fixture.machine.loop().set_served_hook([&] {
    if (form.Text13.text().empty()) return;
    lines.push_back(scan_progress(form, form.Text13.text()));
  });

  form.cmd_start.click();

  // The text changes behind the turn of the loop: each turn shows the file before.
  ASSERT_GE(lines.size(), 2U);
  EXPECT_EQ(lines[0], "1 file, 1 KB  C:\\Windows\\Temp\\a.tmp");
  EXPECT_EQ(lines[1], "2 files, 1.5 KB  C:\\Windows\\Temp\\b.tmp");
}

TEST(ScanProgress, ASecondScanCountsFromTheBeginning) {
  ScanFixture fixture;
  fixture.machine.add_file("C:\\Windows\\Temp\\a.tmp", 1024);
  Form7& form = fixture.start();
  form.cmd_start.click();
  form.cmd_start.click();
  EXPECT_EQ(scan_progress(form, "C:\\"), "1 file, 1 KB  C:\\");
}

TEST(ScanProgress, CountsAcrossCategories) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  EXPECT_EQ(scan_progress(form, ""), "10 files, 100 B  ");
}

}  // namespace
}  // namespace quillvane
