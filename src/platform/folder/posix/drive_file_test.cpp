#include "platform/folder/posix/drive_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <cerrno>
#include <string>

#include "tests/support/drive_test.h"
#include "tests/support/host_faults.h"

namespace quillvane {

namespace {

class DriveFile : public DriveTest {};

}  // namespace

TEST_F(DriveFile, IsReadWhole) {
  std::string content;
  for (int i = 0; content.size() < 100'000; ++i) content += std::to_string(i);
  host.write("drive_c/a.txt", content);
  host.write("drive_c/empty.txt");
  EXPECT_TRUE(files.read_file("C:\\A.txt") == content);
  EXPECT_EQ(files.read_file("C:\\empty.txt"), "");
  EXPECT_EQ(files.read_file("C:\\missing.txt"), ReadFailure::kMissing);
  EXPECT_EQ(files.read_file("C:\\"), ReadFailure::kFolder);
}

TEST_F(DriveFile, IsNothingWhenTheDiskCannotBeRead) {
  host.write("drive_c/a.txt", "text");
  with_failing_calls({SYS_read}, EIO,
                     [this] { EXPECT_EQ(files.read_file("C:\\a.txt"), ReadFailure::kUnreadable); });
}

TEST_F(DriveFile, IsNothingWhenItIsTooLargeToBeHeld) {
  host.write_sparse("drive_c/huge.dat", std::uintmax_t{5} << 30U);
  EXPECT_EQ(files.file_size("C:\\huge.dat"), std::uint64_t{5} << 30U);
  EXPECT_EQ(files.read_file("C:\\huge.dat"), ReadFailure::kTooLarge);
}

TEST_F(DriveFile, IsReplacedAtOneStroke) {
  host.write("drive_c/List.txt", "a long old text");
  EXPECT_TRUE(files.write_file("C:\\list.TXT", "new"));
  EXPECT_EQ(host.read("drive_c/List.txt"), "new");
  EXPECT_TRUE(files.write_file("C:\\list.txt", ""));
  EXPECT_EQ(host.read("drive_c/List.txt"), "");
  EXPECT_EQ(list("C:\\"), Names{"List.txt"});
}

TEST_F(DriveFile, KeepsRightsAndAttributesWhenItIsReplaced) {
  host.write("drive_c/a.txt", "old");
  ASSERT_EQ(chmod(host.path_of("drive_c/a.txt").c_str(), 0640), 0);
  set_stored_attributes("drive_c/a.txt", "0x22");
  EXPECT_TRUE(files.write_file("C:\\a.txt", "new"));
  struct stat status {};
  EXPECT_EQ(stat(host.path_of("drive_c/a.txt").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777U, 0640U);
  EXPECT_EQ(stored_attributes("drive_c/a.txt"), "0x22");
}

TEST_F(DriveFile, IsMadeWhereNoneWas) {
  host.make_folder("drive_c/Data");
  EXPECT_TRUE(files.write_file("C:\\DATA\\Junst.txt", "3|4096"));
  EXPECT_EQ(host.read("drive_c/Data/Junst.txt"), "3|4096");
  EXPECT_FALSE(files.write_file("C:\\missing\\a.txt", "x"));
  EXPECT_FALSE(files.write_file("C:\\Data\\Junst.txt\\a.txt", "x"));
  EXPECT_FALSE(files.write_file("C:\\Data\\a?.txt", "x"));
  EXPECT_FALSE(files.write_file("C:\\Data", "x"));
  EXPECT_FALSE(files.write_file("C:\\", "x"));
  EXPECT_FALSE(files.write_file("E:\\a.txt", "x"));
  EXPECT_EQ(list("C:\\Data"), Names{"Junst.txt"});
}

TEST_F(DriveFile, StaysAsItWasWhenTheDiskIsFull) {
  host.write("drive_c/a.txt", "old");
  with_failing_calls({SYS_write}, ENOSPC, [this] {
    EXPECT_FALSE(files.write_file("C:\\a.txt", "new"));
    EXPECT_FALSE(files.write_file("C:\\b.txt", "new"));
  });
  EXPECT_EQ(host.read("drive_c/a.txt"), "old");
  EXPECT_EQ(list("C:\\"), Names{"a.txt"});
}

TEST_F(DriveFile, StaysAsItWasWhenTheDiskFailsLater) {
  host.write("drive_c/a.txt", "old");
  for (const long call : {SYS_fsync, SYS_renameat, SYS_fchmod}) {
    with_failing_calls({call}, EIO, [this] { EXPECT_FALSE(files.write_file("C:\\a.txt", "new")); });
    EXPECT_EQ(host.read("drive_c/a.txt"), "old") << call;
    EXPECT_EQ(list("C:\\"), Names{"a.txt"}) << call;
  }
}

TEST_F(DriveFile, StaysAsItWasWhereNoFileCanBeMadeBeside) {
  const AsOrdinaryUser user;
  const TempFolder own;
  own.write("a.txt", "old");
  ASSERT_EQ(chmod(own.path().c_str(), 0555), 0);
  machine.drives[0].folder = own.path();
  EXPECT_FALSE(files.write_file("C:\\a.txt", "new"));
  EXPECT_EQ(own.read("a.txt"), "old");
  ASSERT_EQ(chmod(own.path().c_str(), 0755), 0);
}

TEST_F(DriveFile, IsWrittenThroughALinkThatStays) {
  host.write("drive_c/Data/real.txt", "old");
  host.make_link("drive_c/link.txt", "Data/real.txt");
  EXPECT_TRUE(files.write_file("C:\\link.txt", "new"));
  EXPECT_EQ(host.read("drive_c/Data/real.txt"), "new");
  EXPECT_EQ(files.read_file("C:\\link.txt"), "new");
  EXPECT_EQ(list("C:\\Data"), Names{"real.txt"});
}

TEST_F(DriveFile, IsNotWrittenThroughALinkThatLeadsNowhere) {
  host.write("outside.txt", "old");
  host.make_link("drive_c/out.txt", "../outside.txt");
  host.make_link("drive_c/broken.txt", "missing.txt");
  EXPECT_FALSE(files.write_file("C:\\out.txt", "new"));
  EXPECT_FALSE(files.write_file("C:\\broken.txt", "new"));
  EXPECT_EQ(host.read("outside.txt"), "old");
  EXPECT_EQ(files.read_file("C:\\out.txt"), ReadFailure::kUnreadable);
  EXPECT_FALSE(host.has("drive_c/missing.txt"));
}

}  // namespace quillvane
