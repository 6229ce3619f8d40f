#include "platform/folder/host_staging.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "platform/folder/machine_staging.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

class MachineStaging : public testing::Test {
 protected:
  MachineStaging() {
    machine_.drives.push_back(
        {'C', DriveType::kFixed, folder_.path_of("c"), std::nullopt, std::nullopt});
  }

  TempFolder folder_;
  MachineState machine_;
};

TEST_F(MachineStaging, PathsLieBelowTheFolderOfTheirDrive) {
  EXPECT_EQ(host_path_of(machine_, "C:\\Temp\\a.tmp"), folder_.path_of("c/Temp/a.tmp"));
  EXPECT_EQ(host_path_of(machine_, "c:\\Temp\\"), folder_.path_of("c/Temp"));
  EXPECT_EQ(host_path_of(machine_, "C:\\"), folder_.path_of("c"));
  EXPECT_EQ(host_path_of(machine_, "C:"), folder_.path_of("c"));
}

TEST_F(MachineStaging, WhatIsNoPathOfTheMachineIsNowhere) {
  for (const char* path : {"D:\\a", "", "C", "Temp\\a", "\\\\server\\a", "C:a"}) {
    EXPECT_EQ(host_path_of(machine_, path), std::nullopt) << path;
    EXPECT_TRUE(stage_folder(machine_, path)) << path;
  }
}

TEST_F(MachineStaging, NamesThatAreThereAreUsedWithoutRegardToCase) {
  folder_.make_folder("c/Windows/Temp");
  folder_.make_folder("c/WINDOWS");
  folder_.make_folder("c/Größe");
  EXPECT_EQ(host_path_of(machine_, "C:\\WINDOWS\\x"), folder_.path_of("c/WINDOWS/x"));
  EXPECT_EQ(host_path_of(machine_, "C:\\Windows\\TEMP\\x"), folder_.path_of("c/Windows/Temp/x"));
  EXPECT_EQ(host_path_of(machine_, "C:\\GRÖßE\\x"), folder_.path_of("c/Größe/x"));
}

TEST_F(MachineStaging, AFileHasItsTextLengthAndTime) {
  const FileTime time{130'071'207'000'000'000};  // 2013-03-07 09:05:00
  ASSERT_FALSE(stage_file(machine_, "C:\\a\\b.txt", {.text = "text", .bytes = 10, .time = time}));
  struct stat found = {};
  ASSERT_EQ(::stat(folder_.path_of("c/a/b.txt").c_str(), &found), 0);
  EXPECT_EQ(found.st_mtim.tv_sec, 1'362'647'100);
  EXPECT_EQ(found.st_atim.tv_sec, 1'362'647'100);
  EXPECT_EQ(folder_.read("c/a/b.txt"), std::string("text") + std::string(6, '\0'));
}

TEST_F(MachineStaging, AFileThatIsThereIsReplaced) {
  ASSERT_FALSE(stage_file(machine_, "C:\\a.txt", {.text = "long text", .bytes = 0, .time = {}}));
  ASSERT_FALSE(stage_file(machine_, "C:\\A.TXT", {.text = "new", .bytes = 0, .time = {}}));
  EXPECT_EQ(folder_.read("c/a.txt"), "new");
  EXPECT_FALSE(folder_.has("c/A.TXT"));
}

TEST_F(MachineStaging, AFileOfManyBytesTakesNoRoom) {
  ASSERT_FALSE(stage_file(machine_, "C:\\big", {.text = {}, .bytes = 5'000'000'000, .time = {}}));
  EXPECT_EQ(fs::file_size(folder_.path_of("c/big")), 5'000'000'000U);
  struct stat found = {};
  ASSERT_EQ(::stat(folder_.path_of("c/big").c_str(), &found), 0);
  EXPECT_LT(found.st_blocks, 100);
}

TEST_F(MachineStaging, AJunctionLeadsToItsTargetWhereverTheMachineLies) {
  ASSERT_FALSE(stage_folder(machine_, "C:\\Users\\User\\AppData\\Local"));
  ASSERT_FALSE(stage_junction(machine_, "C:\\Users\\User\\Local Settings",
                              "C:\\Users\\User\\AppData\\Local"));
  EXPECT_EQ(fs::read_symlink(folder_.path_of("c/Users/User/Local Settings")), "AppData/Local");
}

TEST_F(MachineStaging, AFileInPlaceOfAFolderIsTold) {
  folder_.write("c/a", "x");
  EXPECT_TRUE(stage_folder(machine_, "C:\\a\\b"));
  EXPECT_TRUE(stage_file(machine_, "C:\\a\\b", {.text = "x", .bytes = 0, .time = {}}));
  EXPECT_EQ(folder_.read("c/a"), "x");
}

}  // namespace
}  // namespace quillvane
