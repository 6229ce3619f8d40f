#include "platform/folder/posix/folder_listing.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "tests/support/drive_test.h"

namespace quillvane {

namespace {

class FolderListing : public DriveTest {
 protected:
  // Sets the times of last access and change, in seconds since 1970.
  void set_times(std::string_view name, std::int64_t accessed, std::int64_t modified) {
    const timespec times[] = {{accessed, 0}, {modified, 123'456'789}};
    ASSERT_EQ(utimensat(AT_FDCWD, host.path_of(name).c_str(), times, 0), 0);
  }
};

}  // namespace

TEST_F(FolderListing, TellsAllOfAFile) {
  host.write("drive_c/Temp/a.tmp", "12345");
  set_stored_attributes("drive_c/Temp/a.tmp", "0x23");
  // 2009-02-13 23:31:30 and 2001-09-09 01:46:40.
  set_times("drive_c/Temp/a.tmp", 1'234'567'890, 1'000'000'000);
  const auto entries = files.list_folder("C:\\Temp", "*.*");
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].name, "a.tmp");
  EXPECT_EQ(entries[0].attributes, 0x23U);
  EXPECT_EQ(entries[0].size_bytes, 5U);
  EXPECT_FALSE(entries[0].is_folder());
  // Seconds from 1601 to 1970 are 11644473600; steps are of 100 nanoseconds.
  EXPECT_EQ(entries[0].accessed.ticks, 128'790'414'900'000'000);
  EXPECT_EQ(entries[0].modified.ticks, 126'444'736'001'234'567);
}

TEST_F(FolderListing, TellsWhenAFileWasMade) {
  host.write("drive_c/a.tmp");
  set_times("drive_c/a.tmp", 1'000'000'000, 1'000'000'000);
  HostStatus status;
  ASSERT_EQ(statx(AT_FDCWD, host.path_of("drive_c/a.tmp").c_str(), 0, STATX_BTIME, &status), 0);
  const bool knows = (status.stx_mask & STATX_BTIME) != 0;
  const std::int64_t made = knows ? status.stx_btime.tv_sec : 1'000'000'000;
  const auto entries = files.list_folder("C:\\", "*.*");
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].created.ticks / 10'000'000, made + 11'644'473'600);
}

TEST_F(FolderListing, CountsTheTimeOfAFileOlderThan1970) {
  host.write("drive_c/a.tmp");
  set_times("drive_c/a.tmp", -86'400, -1);
  const auto entries = files.list_folder("C:\\", "*.*");
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].accessed.ticks, 116'443'872'000'000'000);
  EXPECT_EQ(entries[0].modified.ticks, 116'444'735'991'234'567);
}

TEST_F(FolderListing, TellsFoldersWithoutASize) {
  host.make_folder("drive_c/Temp");
  const auto entries = files.list_folder("C:\\", "*.*");
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_TRUE(entries[0].is_folder());
  EXPECT_EQ(entries[0].attributes, 0x10U);
  EXPECT_EQ(entries[0].size_bytes, 0U);
}

TEST_F(FolderListing, ShowsALinkAsWhatItLeadsTo) {
  host.write("drive_c/Temp/a.tmp", "12345");
  host.make_link("drive_c/file.tmp", "Temp/a.tmp");
  host.make_link("drive_c/folder", "Temp");
  host.make_link("drive_c/nowhere", "missing");
  const auto entries = files.list_folder("C:\\", "*.*");
  ASSERT_EQ(list("C:\\"), (Names{"file.tmp", "folder", "Temp"}));
  EXPECT_EQ(entries[0].size_bytes, 5U);
  EXPECT_FALSE(entries[0].is_folder());
  EXPECT_TRUE(entries[1].is_folder());
}

TEST_F(FolderListing, TakesAPatternForFoldersToo) {
  host.make_folder("drive_c/logs.tmp");
  host.make_folder("drive_c/logs.old");
  host.write("drive_c/a.tmpx");
  EXPECT_EQ(list("C:\\", "*.tmp"), (Names{"a.tmpx", "logs.tmp"}));
  EXPECT_EQ(list("C:\\", "LOGS.OLD"), Names{"logs.old"});
}

TEST_F(FolderListing, ListsBothOfNamesThatDifferByCase) {
  host.write("drive_c/x/a.TMP");
  host.write("drive_c/x/a.tmp");
  EXPECT_EQ(list("C:\\X"), (Names{"a.TMP", "a.tmp"}));
}

TEST_F(FolderListing, TakesAFolderWithAndWithoutBackslash) {
  host.write("drive_c/Temp/a.tmp");
  EXPECT_EQ(list("C:\\Temp\\"), Names{"a.tmp"});
  EXPECT_EQ(list("C:\\Temp"), Names{"a.tmp"});
  EXPECT_EQ(list("C:/temp"), Names{"a.tmp"});
  EXPECT_EQ(list("C:\\"), Names{"Temp"});
  EXPECT_EQ(list("C:"), Names{"Temp"});
}

TEST_F(FolderListing, EndsAt260CharactersThePatternIncluded) {
  const std::string name(124, 'n');
  const std::string inner(126, 'i');
  host.write("drive_c/" + name + "/" + inner + "/abc");
  // 3 + 124 + 1 + 126 + 1 = 255 with the backslash.
  const std::string folder = "C:\\" + name + "\\" + inner;
  EXPECT_EQ(list(folder, "*.*"), Names{"abc"});
  EXPECT_EQ(list(folder, "abc"), Names{"abc"});
  EXPECT_EQ(list(folder, "a*.*"), Names{"abc"});
  EXPECT_EQ(list(folder, "ab*.*"), Names{});
  EXPECT_EQ(list(folder + "\\", "a*.*"), Names{"abc"});
}

TEST_F(FolderListing, IsEmptyForWhatIsNoFolder) {
  host.write("drive_c/a.tmp");
  for (const char* folder : {"C:\\a.tmp", "C:\\missing", "E:\\", "Temp", ""}) {
    EXPECT_EQ(list(folder), Names{}) << folder;
  }
  machine.drives[0].folder = host.path_of("not made");
  EXPECT_EQ(list("C:\\"), Names{});
}

}  // namespace quillvane
