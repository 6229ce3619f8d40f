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
  folder_.make_folder(
      "c/Gr\xC3\xB6\xC3\x9F"
      "e");
  ASSERT_FALSE(stage_file(machine_,
                          "C:\\GR\xC3\x96\xC3\x9F"
                          "E\\a.txt",
                          {.text = "long text"}));
  ASSERT_FALSE(stage_file(machine_,
                          "C:\\gr\xC3\xB6\xC3\x9F"
                          "e\\A.TXT",
                          {.text = "new"}));
  const auto found = files_.list_folder(
      "C:\\Gr\xC3\xB6\xC3\x9F"
      "e",
      "*.*");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].name, "a.txt");
  EXPECT_EQ(files_.read_file("C:\\Gr\xC3\xB6\xC3\x9F"
                             "e\\a.txt"),
            "new");
}

TEST_F(HostStagingOnWindows, AFileInPlaceOfAFolderIsTold) {
  folder_.write("c/a", "x");
  EXPECT_TRUE(stage_folder(machine_, "C:\\a\\b"));
  EXPECT_TRUE(stage_file(machine_, "C:\\a\\b", {.text = "x"}));
  EXPECT_EQ(folder_.read("c/a"), "x");
}

TEST_F(HostStagingOnWindows, AHostPathMayBeLong) {
  const std::string name(120, 'n');
  const std::string path = "C:\\" + name + "\\" + name + "\\f";
  ASSERT_FALSE(stage_file(machine_, path, {.text = "x"}));
  EXPECT_EQ(files_.read_file(path), "x");
}

}  // namespace
}  // namespace quillvane
