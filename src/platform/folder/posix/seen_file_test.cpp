#include "platform/folder/posix/seen_file.h"

#include <gtest/gtest.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <memory>
#include <string>

#include "platform/file_system.h"
#include "tests/support/temp_folder.h"

namespace quillvane {

namespace {

class FileLookTest : public ::testing::Test {
 protected:
  FileLookTest() {
    host.write("Temp/a.tmp", "12345");
    host.write("Temp/b.tmp", "");
    host.make_folder("Temp/sub");
  }

  [[nodiscard]] std::shared_ptr<const LookedAtFolder> folder(const std::string& name) const {
    return std::make_shared<const LookedAtFolder>(
        LookedAtFolder{std::make_shared<const DriveFolder>(host.path()), {name}});
  }

  TempFolder host;
  FileLook look;
};

}  // namespace

TEST_F(FileLookTest, TellsWhatAFileIs) {
  const auto seen = look.look(folder("Temp"), "a.tmp");
  ASSERT_TRUE(seen);
  EXPECT_EQ(seen->name, "a.tmp");
  EXPECT_EQ(seen->status.stx_size, 5U);
  EXPECT_EQ(seen->attributes, kAttributeArchive);
  EXPECT_TRUE(seen->only_name);
  EXPECT_EQ(seen->folder->path, "Temp");
}

TEST_F(FileLookTest, TellsStoredAttributes) {
  ASSERT_EQ(setxattr(host.path_of("Temp/a.tmp").c_str(), "user.DOSATTRIB", "0x21", 4, 0), 0);
  const auto seen = look.look(folder("Temp"), "a.tmp");
  ASSERT_TRUE(seen);
  EXPECT_EQ(seen->attributes, kAttributeArchive | kAttributeReadOnly);
}

TEST_F(FileLookTest, FindsTheFolderInAnyCaseButTheFileOnlyAsItIsSpelt) {
  const auto temp = folder("TEMP");
  EXPECT_TRUE(look.look(temp, "b.tmp"));
  EXPECT_FALSE(look.look(temp, "B.tmp"));
}

TEST_F(FileLookTest, SaysNothingOfFoldersLinksAndWhatIsMissing) {
  ASSERT_EQ(symlink("a.tmp", host.path_of("Temp/link.tmp").c_str()), 0);
  const auto temp = folder("Temp");
  EXPECT_FALSE(look.look(temp, "sub"));
  EXPECT_FALSE(look.look(temp, "link.tmp"));
  EXPECT_FALSE(look.look(temp, "c.tmp"));
  EXPECT_FALSE(look.look(folder("Missing"), "a.tmp"));
  EXPECT_TRUE(look.look(temp, "a.tmp"));
}

TEST_F(FileLookTest, KnowsOfANameThatDiffersByCaseAlone) {
  host.write("Temp/A.TMP", "");
  const auto temp = folder("Temp");
  EXPECT_FALSE(look.look(temp, "a.tmp")->only_name);
  EXPECT_FALSE(look.look(temp, "A.TMP")->only_name);
  EXPECT_TRUE(look.look(temp, "b.tmp")->only_name);
}

TEST_F(FileLookTest, GoesFromFolderToFolder) {
  host.write("Other/a.tmp", "1");
  EXPECT_EQ(look.look(folder("Temp"), "a.tmp")->status.stx_size, 5U);
  EXPECT_EQ(look.look(folder("Other"), "a.tmp")->status.stx_size, 1U);
  EXPECT_FALSE(look.look(folder("Other"), "b.tmp"));
}

TEST_F(FileLookTest, DoesNotLeaveTheDriveByALink) {
  TempFolder outside;
  outside.write("a.tmp", "secret");
  ASSERT_EQ(symlink(outside.path().c_str(), host.path_of("way-out").c_str()), 0);
  EXPECT_FALSE(look.look(folder("way-out"), "a.tmp"));
}

}  // namespace quillvane
