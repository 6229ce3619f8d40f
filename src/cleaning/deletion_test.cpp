#include "cleaning/deletion.h"

#include <gtest/gtest.h>

#include "cleaning/permission.h"
#include "platform/forwarding_file_system.h"
#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

class DeletionTest : public testing::Test {
 protected:
  bool delete_file(std::string path) {
    DeleteAFile(platform, path);
    return !machine.has_file(path);
  }

  TempMachine machine;
  Platform platform = machine.platform();
};

TEST_F(DeletionTest, AFileGoesAndIsNotThereAnyMore) {
  machine.add_file("C:\\Temp\\a.tmp", 5);
  EXPECT_TRUE(StillThere(platform, "C:\\Temp\\A.TMP"));
  EXPECT_TRUE(delete_file("C:\\Temp\\A.TMP"));
  EXPECT_FALSE(StillThere(platform, "C:\\Temp\\A.TMP"));
}

TEST_F(DeletionTest, AReadOnlyFileStays) {
  machine.add_file("C:\\Temp\\a.tmp", 5);
  ASSERT_TRUE(platform.files.set_attributes("C:\\Temp\\a.tmp", kAttributeReadOnly));
  EXPECT_FALSE(delete_file("C:\\Temp\\a.tmp"));
  EXPECT_TRUE(StillThere(platform, "C:\\Temp\\a.tmp"));
}

TEST_F(DeletionTest, AFileInUseStays) {
  machine.add_file("C:\\Temp\\a.tmp", 5);
  machine.machine().add_in_use("C:\\Temp\\a.tmp");
  EXPECT_FALSE(delete_file("C:\\Temp\\a.tmp"));
  EXPECT_TRUE(StillThere(platform, "C:\\Temp\\a.tmp"));
}

TEST_F(DeletionTest, AnEmptyFileIsThereToo) {
  machine.add_file("C:\\Temp\\empty.tmp", 0);
  EXPECT_TRUE(StillThere(platform, "C:\\Temp\\empty.tmp"));
}

// A machine whose files nobody can open.
class ClosedFiles final : public ForwardingFileSystem {
 public:
  using ForwardingFileSystem::ForwardingFileSystem;
  [[nodiscard]] bool can_open(const std::string&) const override { return false; }
};

TEST_F(DeletionTest, AnEmptyFileThatCannotBeOpenedIsSeenByItsNameUnlessItIsHidden) {
  ClosedFiles closed(platform.files);
  const Platform refusing = platform.with({.files = &closed});
  const std::string path = "C:\\Temp\\empty.tmp";
  machine.add_file(path, 0);
  EXPECT_TRUE(StillThere(refusing, path));
  for (const std::uint32_t unseen : {kAttributeHidden, kAttributeSystem}) {
    ASSERT_TRUE(platform.files.set_attributes(path, unseen));
    EXPECT_FALSE(StillThere(refusing, path));
    EXPECT_TRUE(StillThere(platform, path));
  }
  machine.add_file("C:\\Temp\\full.tmp", 1);
  ASSERT_TRUE(platform.files.set_attributes("C:\\Temp\\full.tmp", kAttributeHidden));
  EXPECT_TRUE(StillThere(refusing, "C:\\Temp\\full.tmp"));
}

TEST_F(DeletionTest, AFolderIsNoFileThatIsThere) {
  machine.add_folder("C:\\Temp\\folder");
  EXPECT_FALSE(StillThere(platform, "C:\\Temp\\folder"));
}

TEST_F(DeletionTest, PathsOutsideTheBinAskForNoRights) {
  machine.add_file("C:\\Temp\\a.tmp", 5);
  EXPECT_TRUE(delete_file("C:\\Temp\\a.tmp"));
  EXPECT_TRUE(machine.effects().take().empty());
}

TEST_F(DeletionTest, APathInTheBinAsksForRightsOnItWithoutItsBlanks) {
  std::string path = "  C:\\$RECYCLE.BIN\\a.tmp ";
  changepermission(platform, path);
  EXPECT_EQ(path, "C:\\$RECYCLE.BIN\\a.tmp");
  EXPECT_EQ(machine.effects().take(), (std::vector<Effect>{{"file-access", {{"path", path}}}}));
}

}  // namespace
}  // namespace quillvane
