// The cleaning run where the machine refuses what it is asked.
#include <gtest/gtest.h>

#include <string>

#include "platform/virtual/effect_log.h"
#include "tests/support/memory_registry.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

int count_of(const std::vector<Effect>& effects, const std::string& name) {
  int count = 0;
  for (const Effect& effect : effects) count += effect.kind == name ? 1 : 0;
  return count;
}

TEST(CleaningRun, ARecycleBinAtTheVeryBeginningOfAPathIsNotTheBin) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  add_hit(form.view1, "$recycle.bin\\a.txt", 8);
  static_cast<void>(fixture.machine.effects().take());

  form.orvbutton2.click();

  const std::vector<Effect> effects = fixture.machine.effects().take();
  EXPECT_EQ(count_of(effects, "empty-recycle-bin"), 0);
  // Both the removal and the look at what is left ask for rights on it.
  EXPECT_EQ(count_of(effects, "file-access"), 2);
  EXPECT_EQ(form.view1.count(), 0);
}

TEST(CleaningRun, ARecycleBinBehindTheFirstLetterIsTheBin) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  add_hit(form.view1, "\\$RECYCLE.BIN\\a.txt", 8);
  static_cast<void>(fixture.machine.effects().take());

  form.orvbutton2.click();

  EXPECT_EQ(count_of(fixture.machine.effects().take(), "empty-recycle-bin"), 1);
}

// Writes down what it is told.
class NotedCleaning final : public CleaningObserver {
 public:
  void cleaning_begins(int rows) override { told += "begins " + std::to_string(rows) + "\n"; }
  void row_done(const std::string& path) override { told += path + "\n"; }
  void cleaning_ends() override { told += "ends\n"; }

  std::string told;
};

TEST(CleaningRun, TellsWhoLooksOnOfEachRow) {
  ScanFixture fixture;
  fixture.machine.add_file("C:\\Windows\\Temp\\a.tmp", 5);
  Form7& form = fixture.start();
  add_hit(form.view1, "C:\\Windows\\Temp\\a.tmp", 2);
  add_hit(form.view1, "C:\\Windows\\Temp\\missing.tmp", 2);
  NotedCleaning noted;
  form.observer = &noted;

  form.orvbutton2.click();

  EXPECT_EQ(noted.told,
            "begins 2\nC:\\Windows\\Temp\\a.tmp\nC:\\Windows\\Temp\\missing.tmp\nends\n");
}

TEST(CleaningRun, OfAnEmptyListNobodyIsTold) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  NotedCleaning noted;
  form.observer = &noted;

  form.orvbutton2.click();

  EXPECT_EQ(noted.told, "");
}

TEST(CleaningRun, AQueueThatCannotBeWrittenIsPromisedAllTheSame) {
  ScanFixture fixture;
  MemoryRegistry registry;
  registry.writable = false;
  fixture.machine.add_file("C:\\Windows\\Temp\\locked.tmp", 5);
  fixture.machine.machine().add_in_use("C:\\Windows\\Temp\\locked.tmp");
  fixture.program.emplace(fixture.machine.platform().with({.registry = &registry}));
  fixture.program->start("");
  Form7& form = fixture.program->main_window();
  form.cmd_start.click();
  ASSERT_EQ(form.view1.count(), 1);
  static_cast<void>(fixture.machine.dialogs().take_boxes());

  form.orvbutton2.click();

  const auto boxes = fixture.machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].text,
            "Some files cannot be deleted now, They will be deleted next time when you restart "
            "your PC.");
  EXPECT_EQ(form.view1.count(), 0);
  EXPECT_TRUE(fixture.machine.has_file("C:\\Windows\\Temp\\locked.tmp"));
  EXPECT_EQ(form.txtfilecont.text(), "0");
}

// --- Ended before its last row.

TEST(EndedCleaning, StopsBehindTheRowInHandAndScansNoMore) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  fixture.machine.dialogs().answer(Answer::kYes);
  fixture.when([&form] { return form.view1.count() == 8; },
               [&fixture] { fixture.program->session.end_cleaning(); });

  form.cmd_clean.click();

  EXPECT_EQ(rows(form.view1), Texts(fixture.junk.begin() + 2, fixture.junk.end()));
  EXPECT_FALSE(fixture.machine.has_file(fixture.junk[1]));
  EXPECT_TRUE(fixture.machine.has_file(fixture.junk[2]));
  EXPECT_EQ(form.txtfilecont.text(), "11");
  EXPECT_EQ(form.Tv1.node(2).text, "System Temporary ( 1 files, 10 B )");
  EXPECT_FALSE(fixture.program->ended());
}

TEST(EndedCleaning, LetsNoOtherBeginAndAsksNothing) {
  JunkEverywhere fixture;
  Form7& form = fixture.start();
  form.cmd_start.click();
  fixture.machine.dialogs().answer(Answer::kYes);
  fixture.program->session.end_cleaning();

  form.cmd_clean.click();
  form.Toolbar1.set_button_enabled(6, true);
  form.Toolbar1.click_button(6);
  form.b1.click();
  form.Tv1.click_node(2);
  form.stc.click();

  EXPECT_TRUE(fixture.machine.dialogs().take_boxes().empty());
  EXPECT_EQ(rows(form.view1), fixture.junk);
  EXPECT_TRUE(fixture.machine.has_file(fixture.junk[0]));
}

}  // namespace
}  // namespace quillvane
