#include "machine/create_machine.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "platform/folder/folder_machine.h"
#include "platform/folder/registry_store.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

using namespace std::string_literals;

class CreateMachine : public testing::Test {
 protected:
  // The machine as a program finds it.
  FolderMachine& open() {
    auto opened = FolderMachine::open(folder_.path());
    if (const auto* problem = std::get_if<std::string>(&opened)) ADD_FAILURE() << *problem;
    machine_ = std::get<std::unique_ptr<FolderMachine>>(std::move(opened));
    return *machine_;
  }

  TempFolder folder_;
  std::unique_ptr<FolderMachine> machine_;
};

TEST_F(CreateMachine, MakesTheFoldersOfWindowsOfTheUserAndOfTheProgram) {
  ASSERT_EQ(create_machine(folder_.path()), std::nullopt);
  for (const char* folder :
       {"Windows/Temp", "Windows/System32", "Windows/Installer", "Users/User/AppData/Local/Temp",
        "Users/User/AppData/Roaming/Microsoft/Windows/Recent", "Users/User/Documents",
        "ProgramData", "Program Files/Tidewrack", "Program Files (x86)",
        "$Recycle.Bin/S-1-5-21-1004336348-1177238915-682003330-1001"}) {
    EXPECT_TRUE(folder_.has("drive_c/"s + folder)) << folder;
  }
}

TEST_F(CreateMachine, HoldsNoFiles) {
  ASSERT_EQ(create_machine(folder_.path()), std::nullopt);
  for (const auto& entry :
       std::filesystem::recursive_directory_iterator(folder_.path_of("drive_c"))) {
    EXPECT_TRUE(entry.is_directory() && !entry.is_symlink()) << entry.path();
  }
}

TEST_F(CreateMachine, HasTheKeysThatAScanReads) {
  ASSERT_EQ(create_machine(folder_.path()), std::nullopt);
  FolderRegistry& registry = open().registry();
  EXPECT_EQ(registry.value(Hive::kLocalMachine, "SYSTEM\\CurrentControlSet\\Control\\CrashControl",
                           "DumpFile"),
            (RegistryValue{RegistryType::kExpandSz, "%SystemRoot%\\MEMORY.DMP\0"s}));

  const auto hives =
      registry.values(Hive::kLocalMachine, "SYSTEM\\CurrentControlSet\\Control\\hivelist");
  ASSERT_TRUE(hives.has_value());
  std::vector<std::string> users;
  for (const auto& hive : *hives) {
    if (hive.name.find("S-1-5-21") != std::string::npos) users.push_back(hive.name);
  }
  EXPECT_EQ(users, (std::vector<std::string>{
                       "\\REGISTRY\\USER\\S-1-5-21-1004336348-1177238915-682003330-1001",
                       "\\REGISTRY\\USER\\S-1-5-21-1004336348-1177238915-682003330-1001_Classes"}));
}

TEST_F(CreateMachine, HasTheKeysThatPoliciesAreWrittenTo) {
  ASSERT_EQ(create_machine(folder_.path()), std::nullopt);
  FolderRegistry& registry = open().registry();
  for (const Hive hive : {Hive::kCurrentUser, Hive::kLocalMachine}) {
    for (const char* key :
         {"Policies\\Explorer", "Explorer\\Advanced", "Explorer\\Shell Folders"}) {
      EXPECT_TRUE(registry.values(hive, "Software\\Microsoft\\Windows\\CurrentVersion\\"s + key)
                      .has_value())
          << key;
    }
  }
  EXPECT_TRUE(
      registry.values(Hive::kCurrentUser, "Software\\Policies\\Microsoft\\Windows\\Explorer")
          .has_value());
  EXPECT_EQ(
      registry.value(Hive::kLocalMachine, "SYSTEM\\CurrentControlSet\\Control\\Session Manager",
                     "PendingFileRenameOperations"),
      std::nullopt);
}

TEST_F(CreateMachine, IsOtherwiseAMachineOfDefaults) {
  ASSERT_EQ(create_machine(folder_.path()), std::nullopt);
  const MachineState& state = open().state();
  ASSERT_EQ(state.drives.size(), 1U);
  EXPECT_EQ(state.drives[0].letter, 'C');
  EXPECT_EQ(state.program_folder, "C:\\Program Files\\Tidewrack");
  EXPECT_TRUE(state.processes.empty());
}

TEST_F(CreateMachine, MakesAMissingFolder) {
  EXPECT_EQ(create_machine(folder_.path_of("a/b")), std::nullopt);
  EXPECT_TRUE(folder_.has("a/b/drive_c/Windows"));
}

TEST_F(CreateMachine, RefusesAFolderThatIsNotEmpty) {
  folder_.write("note.txt", "mine");
  EXPECT_EQ(create_machine(folder_.path()), folder_.path() + ": the folder is not empty");
  EXPECT_FALSE(folder_.has("drive_c"));
  EXPECT_EQ(folder_.read("note.txt"), "mine");
}

TEST_F(CreateMachine, RefusesAFile) {
  folder_.write("file");
  const std::string path = folder_.path_of("file");
  const auto problem = create_machine(path);
  ASSERT_TRUE(problem.has_value());
  EXPECT_EQ(problem->substr(0, path.size() + 1), path + ":");
  EXPECT_TRUE(create_machine(path + "/below").has_value());
}

TEST_F(CreateMachine, ThatFailsLeavesNothingBehind) {
  const auto fails = [](const std::string& dir) {
    EXPECT_TRUE(std::filesystem::exists(dir + "/drive_c/Windows"));
    return std::optional("no room"s);
  };
  EXPECT_EQ(create_machine(folder_.path_of("a/b/machine"), fails), "no room");
  EXPECT_FALSE(folder_.has("a"));

  folder_.make_folder("empty");
  EXPECT_EQ(create_machine(folder_.path_of("empty"), fails), "no room");
  EXPECT_TRUE(folder_.has("empty"));
  EXPECT_TRUE(std::filesystem::is_empty(folder_.path_of("empty")));

  folder_.write("full/drive_c/mine", "x");
  EXPECT_NE(create_machine(folder_.path_of("full"), fails), std::nullopt);
  EXPECT_EQ(folder_.read("full/drive_c/mine"), "x");
}

}  // namespace
}  // namespace quillvane
