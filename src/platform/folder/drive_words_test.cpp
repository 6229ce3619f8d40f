#include "platform/folder/drive_words.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

struct Named {
  const char* word;
  DriveType type;
};

constexpr Named kNamed[] = {
    {"fixed", DriveType::kFixed},     {"removable", DriveType::kRemovable},
    {"remote", DriveType::kRemote},   {"cdrom", DriveType::kCdRom},
    {"ramdisk", DriveType::kRamDisk},
};

TEST(DriveWords, EachTypeHasItsWord) {
  for (const Named& each : kNamed) {
    EXPECT_EQ(drive_type_of(each.word), each.type) << each.word;
    EXPECT_EQ(drive_type_word(each.type), each.word);
  }
}

TEST(DriveWords, OtherWordsAreNoType) {
  for (const char* word : {"", "Fixed", "floppy", "fixed "}) {
    EXPECT_EQ(drive_type_of(word), std::nullopt) << '"' << word << '"';
  }
}

TEST(DriveWords, TheFolderOfADriveHasTheSmallLetter) {
  EXPECT_EQ(default_drive_folder('C'), "drive_c");
  EXPECT_EQ(default_drive_folder('z'), "drive_z");
}

}  // namespace
}  // namespace quillvane
