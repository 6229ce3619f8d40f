#include "platform/folder/posix/named_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "tests/support/drive_test.h"

namespace quillvane {

namespace {

class NamedFileTest : public DriveTest {
 protected:
  [[nodiscard]] std::optional<NamedFile> open_name(const std::string& name) const {
    const DriveFolder drive(host.path_of("drive_c"));
    const auto entry = drive.find_entry(std::vector<std::string>{name});
    return entry ? open_named(drive, *entry) : std::nullopt;
  }
};

}  // namespace

TEST_F(NamedFileTest, IsAFileOrFolderItself) {
  host.write("drive_c/a.txt", "123");
  set_stored_attributes("drive_c/a.txt", "0x23");
  const auto file = open_name("a.txt");
  ASSERT_TRUE(file);
  EXPECT_FALSE(file->is_link());
  EXPECT_EQ(file->attributes(), 0x23U);
  EXPECT_EQ(file->place().status.stx_size, 3U);
}

TEST_F(NamedFileTest, IsALinkAndWhereItLeads) {
  host.write("drive_c/sub/a.txt", "123");
  set_stored_attributes("drive_c/sub/a.txt", "0x23");
  host.make_link("drive_c/file", "sub/a.txt");
  host.make_link("drive_c/folder", "sub");
  const auto file = open_name("file");
  ASSERT_TRUE(file);
  EXPECT_TRUE(file->is_link());
  EXPECT_EQ(file->attributes(), 0x20U);
  EXPECT_EQ(file->place().path, "sub/a.txt");
  EXPECT_EQ(file->named.path, "file");
  const auto folder = open_name("folder");
  ASSERT_TRUE(folder);
  EXPECT_EQ(folder->attributes(), 0x10U);
}

TEST_F(NamedFileTest, IsNothingElse) {
  host.make_link("drive_c/broken", "missing");
  ASSERT_EQ(mkfifo(host.path_of("drive_c/pipe").c_str(), 0600), 0);
  host.make_link("drive_c/to_pipe", "pipe");
  for (const char* name : {"broken", "pipe", "to_pipe", "missing"}) {
    EXPECT_FALSE(open_name(name)) << name;
  }
}

}  // namespace quillvane
