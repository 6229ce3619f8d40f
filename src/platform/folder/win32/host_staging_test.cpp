#include "platform/folder/host_staging.h"

#include <gtest/gtest.h>

#include "platform/folder/win32/windows_machine_files.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

class HostStagingOnWindows : public testing::Test {
 protected:
  HostStagingOnWindows() {
    machine_.drives = {{'C', DriveType::kFixed, folder_.path_of("c"), {}, {}}};
  }

  std::error_code stage_text(const std::string& path, std::string_view text) {
    return stage_file(machine_, path, {.text = text, .bytes = 0, .time = {}});
  }

  TempFolder folder_;
  MachineState machine_;
  WindowsMachineFiles files_{machine_};
};

TEST_F(HostStagingOnWindows, AFileHasItsTextLengthAndTime) {
  const FileTime time{130'071'207'000'000'000};  // 2013-03-07 09:05:00
  ASSERT_FALSE(stage_file(machine_, "C:\\a\\b.txt", {.text = "text", .bytes = 10, .time = time}));
  const auto found = files_.list_folder("C:\\a", "*.*");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].modified, time);
  EXPECT_EQ(found[0].accessed, time);
  EXPECT_EQ(folder_.read("c/a/b.txt"), std::string("text") + std::string(6, '\0'));
}

TEST_F(HostStagingOnWindows, NamesThatAreThereAreUsedAsStored) {
  folder_.make_folder("c/\xC3\xA4 b");
  ASSERT_FALSE(stage_text("C:\\\xC3\x84 B\\a.txt", "long text"));
  ASSERT_FALSE(stage_text("C:\\\xC3\xA4 b\\A.TXT", "new"));
  const auto found = files_.list_folder("C:\\\xC3\xA4 b", "*.*");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].name, "a.txt");
  EXPECT_EQ(files_.read_file("C:\\\xC3\xA4 b\\a.txt"), "new");
}

TEST_F(HostStagingOnWindows, AFileInPlaceOfAFolderIsTold) {
  folder_.write("c/a", "x");
  EXPECT_TRUE(stage_folder(machine_, "C:\\a\\b"));
  EXPECT_TRUE(stage_text("C:\\a\\b", "x"));
  EXPECT_EQ(folder_.read("c/a"), "x");
}

TEST_F(HostStagingOnWindows, AHostPathMayBeLong) {
  const std::string name(120, 'n');
  const std::string path = "C:\\" + name + "\\" + name + "\\f";
  ASSERT_FALSE(stage_text(path, "x"));
  EXPECT_EQ(files_.read_file(path), "x");
}

}  // namespace
}  // namespace quillvane
