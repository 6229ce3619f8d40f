#include "support/shell_helpers.h"

#include <gtest/gtest.h>

#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

TEST(LargeToDouble, AddsTwoToThe32ToANegativeHalf) {
  EXPECT_EQ(LargeToDouble(0, 0), 0);
  EXPECT_EQ(LargeToDouble(1, 0), 1);
  EXPECT_EQ(LargeToDouble(-1, 0), 4294967295.0);
  EXPECT_EQ(LargeToDouble(0, 1), 4294967296.0);
  EXPECT_EQ(LargeToDouble(5, 2), 8589934597.0);
  EXPECT_EQ(LargeToDouble(0, -1), 18446744069414584320.0);
}

TEST(OpenFolder, AsksTheShellToOpenIt) {
  TempMachine machine;
  machine.add_folder("C:\\Data");

  EXPECT_GT(OpenFolder(machine.platform().shell, "C:\\Data"), 32);

  const auto effects = machine.effects().take();
  ASSERT_EQ(effects.size(), 1U);
  EXPECT_EQ(effects[0], (Effect{"shell-open",
                                {{"verb", std::string("Open")},
                                 {"path", std::string("C:\\Data")},
                                 {"show", std::int64_t{1}}}}));
}

TEST(ShowFileProperties, NamesTheFile) {
  TempMachine machine;
  machine.add_file("C:\\a.txt", 1);
  EXPECT_TRUE(ShowFileProperties(machine.platform().shell, "C:\\a.txt"));
  EXPECT_EQ(machine.effects().take(),
            (std::vector<Effect>{{"properties", {{"path", std::string("C:\\a.txt")}}}}));
}

TEST(SpecialFolderPath, FollowsTheEnvironment) {
  TempMachine machine;
  const Platform platform = machine.platform();
  EXPECT_EQ(SpecialFolderPath(platform.shell, 0x1A), "C:\\Users\\User\\AppData\\Roaming");
  EXPECT_EQ(SpecialFolderPath(platform.shell, 0x24), "C:\\Windows");
  EXPECT_EQ(SpecialFolderPath(platform.shell, 0x7FFF), "");
}

TEST(BrowseForFolder, AnswersThePathThatWasChosen) {
  TempMachine machine;
  const Platform platform = machine.platform();
  machine.dialogs().answer_path("C:\\Data");

  EXPECT_EQ(BrowseForFolder(platform.dialogs, platform.shell, "Select a folder:", 0, 0x11),
            "C:\\Data");

  const auto boxes = machine.dialogs().take_boxes();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0].kind, "folder");
  EXPECT_EQ(boxes[0].text, "Select a folder:");
  EXPECT_EQ(boxes[0].style, 1U);  // flags of 0 ask for folders of the file system
}

TEST(BrowseForFolder, IsEmptyWhenCancelled) {
  TempMachine machine;
  const Platform platform = machine.platform();
  EXPECT_EQ(BrowseForFolder(platform.dialogs, platform.shell, "Select a folder:", 0, 0x11), "");
}

}  // namespace
}  // namespace quillvane
