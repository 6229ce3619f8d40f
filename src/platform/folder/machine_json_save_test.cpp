#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <variant>

#include "platform/folder/machine_environment.h"
#include "platform/folder/machine_json.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

class MachineJsonSave : public testing::Test {
 protected:
  MachineState load() {
    auto result = load_machine_json(folder_.path());
    if (const auto* error = std::get_if<std::string>(&result)) {
      ADD_FAILURE() << *error;
      return {};
    }
    return std::get<MachineState>(std::move(result));
  }

  std::string load_failure() {
    const auto result = load_machine_json(folder_.path());
    const auto* error = std::get_if<std::string>(&result);
    return error == nullptr ? "loaded" : *error;
  }

  TempFolder folder_;
};

TEST_F(MachineJsonSave, AMissingFileIsAMachineOfDefaults) {
  const MachineState state = load();
  ASSERT_EQ(state.drives.size(), 1U);
  EXPECT_EQ(state.drives[0].folder, folder_.path_of("drive_c"));
}

TEST_F(MachineJsonSave, AFileThatCannotBeReadIsTold) {
  folder_.make_folder("machine.json");
  // Each system has its own words for what is wrong with a folder.
  const std::string begin = "machine.json: cannot be read: ";
  EXPECT_EQ(load_failure().substr(0, begin.size()), begin);
  EXPECT_GT(load_failure().size(), begin.size());
}

TEST_F(MachineJsonSave, WithoutADifferenceTheFileStaysAsItIs) {
  const std::string text = "{ \"codePage\" :1252}\n\n";
  folder_.write("machine.json", text);
  EXPECT_EQ(save_machine_json(folder_.path(), load()), std::nullopt);
  EXPECT_EQ(folder_.read("machine.json"), text);
}

TEST_F(MachineJsonSave, DefaultsAloneMakeNoFile) {
  EXPECT_EQ(save_machine_json(folder_.path(), load()), std::nullopt);
  EXPECT_FALSE(folder_.has("machine.json"));
}

TEST_F(MachineJsonSave, OnlyWhatChangedIsWrittenAndTheRestStaysInItsOrder) {
  folder_.write("machine.json",
                R"({"environment": {"b": "1", "a": "2"},
                    "processes": [{"id": 7, "name": "a.exe"}, {"id": 9, "name": "b.exe"}],
                    "windows": ["Tidewrack"]})");
  MachineState state = load();
  state.processes.erase(state.processes.begin());
  EXPECT_EQ(save_machine_json(folder_.path(), state), std::nullopt);
  EXPECT_EQ(folder_.read("machine.json"), R"({
  "environment": {
    "b": "1",
    "a": "2"
  },
  "processes": [
    {
      "id": 9,
      "name": "b.exe"
    }
  ],
  "windows": [
    "Tidewrack"
  ]
}
)");
}

TEST_F(MachineJsonSave, EverythingReadsBackAsItWasSaved) {
  MachineState state = load();
  folder_.make_folder("share");
  state.drives.push_back({'D', DriveType::kRemovable, folder_.path_of("drive_d"), 5000, 40});
  state.drives.push_back(
      {'E', DriveType::kRemote, folder_.path_of("share"), std::nullopt, std::nullopt});
  set_variable(state.environment, "temp", "D:\\T");
  set_variable(state.environment, "EXTRA", "1");
  state.program_folder = "D:\\P";
  state.is_64_bit = true;
  state.code_page = 932;
  state.processes = {{12, "chrome.exe"}};
  state.in_use = {"C:\\ä.tmp"};
  state.denied = {"C:\\no"};
  state.url_cache = {{"http://a/", "C:\\a", 3, "2013-03-07 09:05:00"},
                     {"http://b/", "", std::nullopt, ""}};
  state.windows = {"One", "Two"};
  state.utc_offset_minutes = 60;
  ASSERT_EQ(save_machine_json(folder_.path(), state), std::nullopt);

  const MachineState read = load();
  ASSERT_EQ(read.drives.size(), 3U);
  EXPECT_EQ(read.drives[1].letter, 'D');
  EXPECT_EQ(read.drives[1].type, DriveType::kRemovable);
  EXPECT_EQ(read.drives[1].folder, folder_.path_of("drive_d"));
  EXPECT_EQ(read.drives[1].total_bytes, 5000U);
  EXPECT_EQ(read.drives[1].free_bytes, 40U);
  EXPECT_EQ(read.drives[2].folder, folder_.path_of("share"));
  EXPECT_EQ(read.environment, state.environment);
  EXPECT_EQ(read.program_folder, "D:\\P");
  EXPECT_TRUE(read.is_64_bit);
  EXPECT_EQ(read.code_page, 932);
  ASSERT_EQ(read.processes.size(), 1U);
  EXPECT_EQ(read.processes[0].id, 12U);
  EXPECT_EQ(read.in_use, state.in_use);
  EXPECT_EQ(read.denied, state.denied);
  ASSERT_EQ(read.url_cache.size(), 2U);
  EXPECT_EQ(read.url_cache[0].size, 3U);
  EXPECT_EQ(read.url_cache[0].last_access, "2013-03-07 09:05:00");
  EXPECT_EQ(read.url_cache[1].size, std::nullopt);
  EXPECT_EQ(read.windows, state.windows);
  EXPECT_EQ(read.utc_offset_minutes, 60);
}

TEST_F(MachineJsonSave, ADriveInItsUsualPlaceIsWrittenWithoutAFolder) {
  MachineState state = load();
  state.drives.push_back(
      {'D', DriveType::kFixed, folder_.path_of("drive_d"), std::nullopt, std::nullopt});
  ASSERT_EQ(save_machine_json(folder_.path(), state), std::nullopt);
  EXPECT_EQ(folder_.read("machine.json")->find("folder"), std::string::npos);
}

TEST_F(MachineJsonSave, ABrokenFileIsLeftAlone) {
  const MachineState state = load();
  folder_.write("machine.json", "{");
  const auto problem = save_machine_json(folder_.path(), state);
  ASSERT_TRUE(problem.has_value());
  EXPECT_EQ(problem->substr(0, 25), "machine.json: is no JSON:");
  EXPECT_EQ(folder_.read("machine.json"), "{");
}

TEST_F(MachineJsonSave, AFolderThatIsGoneIsTold) {
  MachineState state = load();
  state.code_page = 932;
  EXPECT_EQ(save_machine_json(folder_.path_of("gone"), state),
            "machine.json: cannot be written: No such file or directory");
}

TEST_F(MachineJsonSave, RemovalsReachTheFileAndAdditionsDoNot) {
  folder_.write("machine.json",
                R"({"processes": [{"id": 7, "name": "a.exe"}, {"id": 9, "name": "b.exe"}],
                    "urlCache": [{"url": "http://a/", "file": "C:\\1"},
                                 {"url": "http://a/", "file": "C:\\2"},
                                 {"url": "http://b/", "file": ""}]})");
  MachineState state = load();
  state.processes.erase(state.processes.begin());
  state.processes.push_back({11, "added.exe"});
  state.url_cache.erase(state.url_cache.begin());
  state.url_cache.push_back({"http://added/", "", std::nullopt, ""});
  set_variable(state.environment, "ADDED", "1");
  state.in_use = {"C:\\added"};
  ASSERT_EQ(save_removals(folder_.path(), state), std::nullopt);

  const MachineState read = load();
  ASSERT_EQ(read.processes.size(), 1U);
  EXPECT_EQ(read.processes[0].id, 9U);
  ASSERT_EQ(read.url_cache.size(), 2U);
  EXPECT_EQ(read.url_cache[0].file, "C:\\2");
  EXPECT_EQ(read.url_cache[1].url, "http://b/");
  EXPECT_EQ(read.environment, default_environment());
  EXPECT_TRUE(read.in_use.empty());
}

}  // namespace
}  // namespace quillvane
