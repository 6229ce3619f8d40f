// What could not be read is not written back: a registry that fails is not an empty one.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "platform/multi_string.h"
#include "platform/virtual/effect_log.h"
#include "tests/support/failing_registry.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

const std::string kQueueKey = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
const std::string kQueue = "PendingFileRenameOperations";
const std::string kDeluxe = "software\\Quillvane\\Tidewrack Deluxe";
const Texts kOthersQueue = {"\\??\\C:\\other.dll", ""};

// A machine with one file in use, the requests of another program in the queue and numbers in the
// settings; what the program tells is kept.
class UnreadRegistry : public testing::Test {
 protected:
  UnreadRegistry() {
    fixture.machine.add_file("C:\\Windows\\Temp\\locked.tmp", 5);
    fixture.machine.machine().add_in_use("C:\\Windows\\Temp\\locked.tmp");
    fixture.machine.set_registry_strings(Hive::kLocalMachine, kQueueKey, kQueue, kOthersQueue);
    setting("statics\\junkfiles", "count", "10");
    setting("statics\\junkfiles", "size", "1000");
    setting("junkscan", "cnt", "7");
    setting("timer", "alldrive", "1");
    setting("timer", "drive1", "Local Disk (C:)");
  }

  void setting(const std::string& key, const std::string& name, const std::string& text) {
    fixture.machine.set_registry_text(Hive::kLocalMachine, kDeluxe + "\\" + key, name, text);
  }
  std::string setting(const std::string& key, const std::string& name) {
    return fixture.machine.registry_text(Hive::kLocalMachine, kDeluxe + "\\" + key, name)
        .value_or("(none)");
  }

  Form7& start() {
    fixture.program.emplace(fixture.machine.platform().with({.registry = &registry}));
    fixture.program->on_problem = [this](std::string_view what, std::string_view why) {
      told.push_back(std::string(what) + ": " + std::string(why));
    };
    fixture.program->start("");
    return fixture.program->main_window();
  }
  void scan_and_clean(Form7& form) {
    form.cmd_start.click();
    ASSERT_EQ(form.view1.count(), 1);
    form.orvbutton2.click();
  }
  Texts queue() {
    const auto value =
        fixture.machine.platform().registry.value(Hive::kLocalMachine, kQueueKey, kQueue);
    return value ? multi_string_list(value->data) : Texts{"(none)"};
  }

  ScanFixture fixture;
  FailingRegistry registry{fixture.machine.platform().registry};
  Texts told;
};

TEST_F(UnreadRegistry, AQueueThatCouldNotBeReadKeepsTheRequestsOfOthers) {
  Form7& form = start();
  form.cmd_start.click();
  registry.unreadable = {"pendingfilerenameoperations"};
  static_cast<void>(fixture.machine.dialogs().take_boxes());

  form.orvbutton2.click();

  EXPECT_EQ(queue(), kOthersQueue);
  EXPECT_EQ(form.last_cleaning.queued, 1);
  EXPECT_FALSE(form.last_cleaning.queue_written);
  EXPECT_EQ(form.last_cleaning.queue_problem, "the disk fails");
  EXPECT_EQ(told, (Texts{"queue of the next restart: the disk fails",
                         "queue of the next restart: not written: the disk fails"}));
  // The box promises all the same.
  EXPECT_EQ(fixture.machine.dialogs().take_boxes().size(), 1U);
}

TEST_F(UnreadRegistry, AQueueThatCanBeReadAgainIsWrittenByTheNextRun) {
  Form7& form = start();
  registry.unreadable = {"pendingfilerenameoperations"};
  scan_and_clean(form);
  registry.unreadable.clear();

  scan_and_clean(form);

  EXPECT_EQ(queue(),
            (Texts{"\\??\\C:\\other.dll", "", "\\??\\C:\\Windows\\Temp\\locked.tmp", "", ""}));
  EXPECT_TRUE(form.last_cleaning.queue_written);
  EXPECT_EQ(form.last_cleaning.queue_problem, "");
}

TEST_F(UnreadRegistry, AQueueThatCannotBeWrittenIsNotCountedAsQueued) {
  Form7& form = start();
  registry.write_protected = true;
  scan_and_clean(form);
  EXPECT_EQ(form.last_cleaning.queued, 1);
  EXPECT_FALSE(form.last_cleaning.queue_written);
  EXPECT_EQ(form.last_cleaning.queue_problem, "the disk fails");
  EXPECT_EQ(queue(), kOthersQueue);
}

TEST_F(UnreadRegistry, StatisticsAreNotBegunAnew) {
  for (const char* name : {"count", "size"}) {
    told.clear();
    Form7& form = start();
    registry.unreadable = {name};
    scan_and_clean(form);
    EXPECT_EQ(setting("statics\\junkfiles", "count"), "10") << name;
    EXPECT_EQ(setting("statics\\junkfiles", "size"), "1000") << name;
    EXPECT_EQ(told, Texts{"statistics: not counted: the disk fails"}) << name;
    fixture.machine.set_registry_strings(Hive::kLocalMachine, kQueueKey, kQueue, kOthersQueue);
  }
}

TEST_F(UnreadRegistry, TheNumberOfBackupsIsNotBegunAnew) {
  Form7& form = start();
  registry.unreadable = {"cnt"};
  form.Command14.click();
  EXPECT_EQ(setting("junkscan", "cnt"), "7");
  EXPECT_EQ(setting("junkscan\\dates", "1"), "(none)");
  EXPECT_EQ(told, Texts{"history of backups: not written: the disk fails"});
}

TEST_F(UnreadRegistry, StoredDrivesAreNotReplacedByWhatIsTickedNow) {
  registry.unreadable = {"drive1"};
  Form7& form = start();
  EXPECT_EQ(ticked(form.View2), std::vector<int>{});
  registry.unreadable.clear();

  form.close();

  EXPECT_EQ(setting("timer", "alldrive"), "1");
  EXPECT_EQ(setting("timer", "drive1"), "Local Disk (C:)");
  EXPECT_EQ(told, Texts{"ticked drives: not saved: the disk fails"});
}

TEST_F(UnreadRegistry, WithoutAViewTheSystemsLogHearsOfIt) {
  Form7& form = start();
  fixture.program->on_problem = nullptr;
  registry.unreadable = {"cnt"};
  static_cast<void>(fixture.machine.effects().take());
  form.Command14.click();
  const std::string text = "history of backups: not written: the disk fails";
  EXPECT_EQ(fixture.machine.effects().take(),
            (std::vector<Effect>{{"event-log", {{"text", text}, {"type", std::int64_t{2}}}}}));
}

}  // namespace
}  // namespace quillvane
