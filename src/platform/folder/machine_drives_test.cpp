#include "platform/folder/machine_drives.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

class MachineDrivesTest : public testing::Test {
 protected:
  void add(char letter, DriveType type, std::optional<std::uint64_t> total = std::nullopt,
           std::optional<std::uint64_t> free = std::nullopt) {
    state_.drives.push_back({letter, type, folder_.path(), total, free});
  }

  TempFolder folder_;
  MachineState state_;
  MachineDrives drives_{state_};
};

TEST_F(MachineDrivesTest, AreListedByLetter) {
  add('D', DriveType::kFixed);
  add('C', DriveType::kFixed);
  EXPECT_EQ(drives_.list(), (std::vector<std::string>{"C:", "D:"}));
}

TEST_F(MachineDrivesTest, HaveTheTypeThatTheMachineTells) {
  add('C', DriveType::kFixed);
  add('E', DriveType::kRemote);
  EXPECT_EQ(drives_.type("C:\\"), DriveType::kFixed);
  EXPECT_EQ(drives_.type("e:\\"), DriveType::kRemote);
  EXPECT_EQ(drives_.type("E:"), DriveType::kRemote);
}

TEST_F(MachineDrivesTest, WhatIsNoDriveHasNoRoot) {
  add('C', DriveType::kFixed);
  for (const char* root : {"D:\\", "", "C", "C\\", "C:\\Windows", "\\\\server\\share", "1:\\"}) {
    EXPECT_EQ(drives_.type(root), DriveType::kNoRoot) << root;
    EXPECT_FALSE(drives_.space(root).has_value()) << root;
  }
}

TEST_F(MachineDrivesTest, GivenSizesAreTold) {
  add('C', DriveType::kFixed, 1'000'000, 250'000);
  const auto space = drives_.space("C:\\");
  ASSERT_TRUE(space.has_value());
  EXPECT_EQ(space->total_bytes, 1'000'000U);
  EXPECT_EQ(space->free_bytes, 250'000U);
}

TEST_F(MachineDrivesTest, SizesThatAreNotGivenAreThoseOfTheHost) {
  add('C', DriveType::kFixed);
  const auto space = drives_.space("C:\\");
  ASSERT_TRUE(space.has_value());
  EXPECT_GT(space->total_bytes, 0U);
  EXPECT_LE(space->free_bytes, space->total_bytes);
}

TEST_F(MachineDrivesTest, OneGivenSizeBoundsTheOther) {
  add('C', DriveType::kFixed, 100, std::nullopt);
  add('D', DriveType::kFixed, std::nullopt, 1ULL << 62);
  EXPECT_EQ(drives_.space("C:\\")->total_bytes, 100U);
  EXPECT_LE(drives_.space("C:\\")->free_bytes, 100U);
  EXPECT_EQ(drives_.space("D:\\")->free_bytes, 1ULL << 62);
  EXPECT_EQ(drives_.space("D:\\")->total_bytes, 1ULL << 62);
}

TEST_F(MachineDrivesTest, ADriveWhoseFolderIsMissingHasTheSizeOfTheHostToo) {
  add('C', DriveType::kFixed);
  state_.drives[0].folder = folder_.path_of("not/there");
  EXPECT_TRUE(drives_.space("C:\\").has_value());
}

TEST_F(MachineDrivesTest, ACdDriveWithoutGivenSizesHasNoMedium) {
  add('E', DriveType::kCdRom);
  add('F', DriveType::kCdRom, 700, 0);
  EXPECT_FALSE(drives_.space("E:\\").has_value());
  ASSERT_TRUE(drives_.space("F:\\").has_value());
  EXPECT_EQ(drives_.space("F:\\")->total_bytes, 700U);
}

}  // namespace
}  // namespace quillvane
