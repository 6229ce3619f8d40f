#include "platform/folder/folder_machine.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/folder/machine_files.h"
#include "platform/folder/registry_store.h"
#include "platform/virtual/queued_dialogs.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

class FolderMachineTest : public testing::Test {
 protected:
  FolderMachine& open() {
    folder_.make_folder("drive_c");
    auto opened = FolderMachine::open(folder_.path());
    if (const auto* problem = std::get_if<std::string>(&opened)) ADD_FAILURE() << *problem;
    machine_ = std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
    return *machine_;
  }

  std::string open_failure(const std::string& dir) {
    const auto opened = FolderMachine::open(dir);
    const auto* problem = std::get_if<std::string>(&opened);
    return problem == nullptr ? "opened" : *problem;
  }

  TempFolder folder_;
  std::unique_ptr<FolderMachine> machine_;
};

TEST_F(FolderMachineTest, AFolderOfADriveIsAMachineOfDefaultsAndGetsNothingByItself) {
  FolderMachine& machine = open();
  QueuedDialogs dialogs(machine.effects());
  const Platform platform = machine.platform(dialogs);
  EXPECT_EQ(platform.drives.list(), std::vector<std::string>{"C:"});
  EXPECT_EQ(platform.drives.type("C:\\"), DriveType::kFixed);
  EXPECT_TRUE(platform.drives.space("C:\\").has_value());
  EXPECT_TRUE(platform.files.list_folder("C:\\", "*.*").empty());
  EXPECT_EQ(platform.environment.get("windir"), "C:\\Windows");
  EXPECT_EQ(platform.system.program_folder(), "C:\\Program Files\\Tidewrack");
  EXPECT_EQ(platform.registry.value(Hive::kCurrentUser, "Software", "a"), std::nullopt);
  EXPECT_TRUE(platform.processes.list().empty());
  EXPECT_EQ(platform.url_cache.find_first(), std::nullopt);
  EXPECT_FALSE(folder_.has("machine.json"));
  EXPECT_FALSE(folder_.has("registry.db"));
}

TEST_F(FolderMachineTest, AFolderWithoutDrivesAndDescriptionIsNoMachine) {
  const std::string problem =
      folder_.path() + ": is no machine folder (it has neither machine.json nor a drive_c)";
  EXPECT_EQ(open_failure(folder_.path()), problem);
  folder_.make_folder("drive_");
  folder_.make_folder("drive_cc");
  folder_.write("drive_d");
  folder_.write("registry.db");
  EXPECT_EQ(open_failure(folder_.path()), problem);

  folder_.make_folder("drive_x");
  EXPECT_EQ(open_failure(folder_.path()), "opened");
}

TEST_F(FolderMachineTest, ADescriptionAloneIsAMachine) {
  folder_.write("machine.json", "{}");
  EXPECT_EQ(open_failure(folder_.path()), "opened");
}

TEST_F(FolderMachineTest, AllThatIsSetUpIsSeenThroughThePlatform) {
  folder_.write("drive_c/Temp/a.tmp", "12345");
  folder_.write("drive_c/Secret/b.tmp");
  FolderMachine& machine = open();
  QueuedDialogs dialogs(machine.effects());
  Platform platform = machine.platform(dialogs);
  machine.set_environment("temp", "C:\\Temp");
  machine.add_process(7, "chrome.exe");
  machine.add_in_use("C:\\Temp\\a.tmp");
  machine.add_denied("C:\\Secret");
  machine.add_url_cache_entry({"http://a/", "C:\\Temp\\a.tmp", 5, ""});
  machine.add_window("Tidewrack");

  EXPECT_EQ(platform.environment.get("TEMP"), "C:\\Temp");
  ASSERT_EQ(platform.processes.list().size(), 1U);
  EXPECT_EQ(platform.processes.list()[0].name, "chrome.exe");
  EXPECT_EQ(platform.files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kInUse);
  EXPECT_TRUE(platform.files.list_folder("C:\\Secret", "*.*").empty());
  EXPECT_EQ(platform.url_cache.find_first()->local_file, "C:\\Temp\\a.tmp");
  EXPECT_EQ(machine.state().windows, std::vector<std::string>{"Tidewrack"});
}

TEST_F(FolderMachineTest, WhatIsSetUpLastsNoLongerThanTheMachineIsOpen) {
  FolderMachine& machine = open();
  machine.set_environment("EXTRA", "1");
  machine.add_process(7, "chrome.exe");
  machine.add_process(8, "brave.exe");
  QueuedDialogs dialogs(machine.effects());
  EXPECT_TRUE(machine.platform(dialogs).processes.terminate(7));
  EXPECT_TRUE(open().state().processes.empty());
  EXPECT_EQ(open().state().environment.size(), 15U);
}

TEST_F(FolderMachineTest, AnEndedProcessAndARemovedCacheEntryStayGone) {
  folder_.write("machine.json",
                R"({"processes": [{"id": 7, "name": "a.exe"}, {"id": 8, "name": "b.exe"}],
                    "urlCache": [{"url": "http://a/", "file": ""},
                                 {"url": "http://b/", "file": ""}]})");
  FolderMachine& machine = open();
  QueuedDialogs dialogs(machine.effects());
  Platform platform = machine.platform(dialogs);
  EXPECT_TRUE(platform.processes.terminate(7));
  EXPECT_TRUE(platform.url_cache.remove("http://b/"));

  const MachineState& state = open().state();
  ASSERT_EQ(state.processes.size(), 1U);
  EXPECT_EQ(state.processes[0].id, 8U);
  ASSERT_EQ(state.url_cache.size(), 1U);
  EXPECT_EQ(state.url_cache[0].url, "http://a/");
}

TEST_F(FolderMachineTest, EffectsOfAllConcernsComeInOneOrder) {
  FolderMachine& machine = open();
  QueuedDialogs dialogs(machine.effects());
  Platform platform = machine.platform(dialogs);
  const std::string key = "SYSTEM\\CurrentControlSet\\Control\\Session Manager";
  ASSERT_TRUE(platform.registry.create_key(Hive::kLocalMachine, key));
  ASSERT_TRUE(platform.registry.set_value(Hive::kLocalMachine, key, "PendingFileRenameOperations",
                                          {RegistryType::kMultiSz, std::string("a\0\0", 3)}));
  ASSERT_TRUE(platform.event_log.write("", "Quillvane", 5000, 1, "text"));
  platform.dialogs.message_box("Done.", "", 0);
  std::vector<std::string> kinds;
  for (const Effect& effect : machine.effects().take()) kinds.push_back(effect.kind);
  EXPECT_EQ(kinds, (std::vector<std::string>{"queue-write", "event-log", "box"}));
}

TEST_F(FolderMachineTest, WhatCannotBeReadIsToldInOneLine) {
  EXPECT_EQ(open_failure(folder_.path_of("gone")),
            folder_.path_of("gone") + ": No such file or directory");
  folder_.write("file");
  EXPECT_EQ(open_failure(folder_.path_of("file")), folder_.path_of("file") + ": is no folder");
  folder_.write("one/machine.json", R"({"codePage": []})");
  EXPECT_EQ(
      open_failure(folder_.path_of("one")),
      folder_.path_of("one") + "/machine.json: codePage: must be a whole number from 1 to 65535");
  folder_.make_folder("two/drive_c");
  folder_.write("two/registry.db", "no store, but long enough to look like a damaged one");
  EXPECT_EQ(open_failure(folder_.path_of("two")),
            folder_.path_of("two") + "/registry.db: cannot be read: file is not a database");
}

}  // namespace
}  // namespace quillvane
