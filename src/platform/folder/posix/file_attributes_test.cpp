#include "platform/folder/posix/file_attributes.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <cerrno>
#include <string>

#include "tests/support/drive_test.h"
#include "tests/support/host_faults.h"

namespace quillvane {

namespace {

class FileAttributes : public DriveTest {
 protected:
  void add_file(mode_t mode = 0644) {
    host.write("drive_c/a.txt");
    ASSERT_EQ(chmod(host.path_of("drive_c/a.txt").c_str(), mode), 0);
  }
  [[nodiscard]] std::uint32_t attributes() const {
    return files.attributes("C:\\a.txt").value_or(0xFFFFFFFF);
  }
  [[nodiscard]] mode_t mode() const {
    struct stat status {};
    EXPECT_EQ(stat(host.path_of("drive_c/a.txt").c_str(), &status), 0);
    return status.st_mode & 07777U;
  }
};

}  // namespace

TEST_F(FileAttributes, AreArchiveWithoutStoredOnes) {
  add_file();
  EXPECT_EQ(attributes(), 0x20U);
}

TEST_F(FileAttributes, AreReadOnlyWithoutStoredOnesWhenTheOwnerMayNotWrite) {
  add_file(0444);
  EXPECT_EQ(attributes(), 0x21U);
}

TEST_F(FileAttributes, AreThoseStored) {
  const struct {
    const char* text;
    std::uint32_t bits;
  } cases[] = {
      {"0x21", 0x21},
      {"0x27", 0x27},
      {"0X2", 0x02},
      {"0x0", 0x80},
      {"0x80", 0x80},
      // Bits that cannot be set and what other programs put behind do not count.
      {"0x32", 0x22},
      {"0x6\n", 0x06},
      {"0x3 and more", 0x03},
      // What is no number counts as nothing stored.
      {"", 0x20},
      {"33", 0x20},
      {"0x", 0x20},
      {"0xZ", 0x20},
      {"0x123456789", 0x20},
  };
  add_file();
  for (const auto& [text, bits] : cases) {
    set_stored_attributes("drive_c/a.txt", text);
    EXPECT_EQ(attributes(), bits) << text;
  }
}

TEST_F(FileAttributes, GoBeforeTheRightToWrite) {
  add_file();
  set_stored_attributes("drive_c/a.txt", "0x22");
  ASSERT_EQ(chmod(host.path_of("drive_c/a.txt").c_str(), 0444), 0);
  EXPECT_EQ(attributes(), 0x22U);
}

TEST_F(FileAttributes, OfAFolderTellThatItIsOne) {
  host.make_folder("drive_c/sub");
  EXPECT_EQ(files.attributes("C:\\sub"), 0x10U);
  EXPECT_EQ(files.attributes("C:\\"), 0x10U);
  EXPECT_TRUE(files.set_attributes("C:\\sub", 0x06));
  EXPECT_EQ(stored_attributes("drive_c/sub"), "0x16");
  EXPECT_EQ(files.attributes("C:\\sub"), 0x16U);
}

TEST_F(FileAttributes, AreStoredAsText) {
  add_file();
  const struct {
    std::uint32_t bits;
    const char* text;
  } cases[] = {{0x21, "0x21"}, {0x07, "0x7"}, {0x80, "0x80"}, {0x00, "0x80"}, {0x12, "0x2"}};
  for (const auto& [bits, text] : cases) {
    EXPECT_TRUE(files.set_attributes("C:\\A.TXT", bits));
    EXPECT_EQ(stored_attributes("drive_c/a.txt"), text);
  }
  EXPECT_EQ(mode(), 0644U);
}

TEST_F(FileAttributes, CanBeTakenFromAFileThatItsOwnerMayNotWrite) {
  const AsOrdinaryUser user;
  const TempFolder own;
  own.write("a.txt");
  ASSERT_EQ(chmod(own.path_of("a.txt").c_str(), 0444), 0);
  machine.drives[0].folder = own.path();

  EXPECT_TRUE(files.set_attributes("C:\\a.txt", 0x80));

  EXPECT_EQ(attributes(), 0x80U);
  struct stat status {};
  EXPECT_EQ(stat(own.path_of("a.txt").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0444U);
}

TEST_F(FileAttributes, AreTheRightToWriteWhereNoneCanBeStored) {
  add_file();
  with_failing_calls({SYS_getxattr, SYS_setxattr}, EOPNOTSUPP, [this] {
    EXPECT_TRUE(files.set_attributes("C:\\a.txt", 0x21));
    EXPECT_EQ(attributes(), 0x21U);
    EXPECT_EQ(mode(), 0444U);
    EXPECT_TRUE(files.set_attributes("C:\\a.txt", 0x80));
    EXPECT_EQ(attributes(), 0x20U);
    EXPECT_EQ(mode(), 0644U);
  });
}

TEST_F(FileAttributes, AreUnchangedWhenTheHostRefuses) {
  add_file();
  set_stored_attributes("drive_c/a.txt", "0x22");
  with_failing_calls({SYS_setxattr}, EACCES,
                     [this] { EXPECT_FALSE(files.set_attributes("C:\\a.txt", 0x21)); });
  EXPECT_EQ(attributes(), 0x22U);
  ASSERT_EQ(chmod(host.path_of("drive_c/a.txt").c_str(), 0444), 0);
  with_failing_calls({SYS_setxattr}, EACCES,
                     [this] { EXPECT_FALSE(files.set_attributes("C:\\a.txt", 0x21)); });
  EXPECT_EQ(mode(), 0444U);
}

}  // namespace quillvane
