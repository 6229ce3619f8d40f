#include "platform/folder/posix/folder_reader.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>

#include <cerrno>
#include <string>
#include <vector>

#include "tests/support/host_faults.h"
#include "tests/support/temp_folder.h"

namespace quillvane {

namespace {

class FolderReaderTest : public ::testing::Test {
 protected:
  // Reads the test's folder as one whose Windows path has so many characters.
  std::size_t read(std::size_t path_units = 3) {
    const auto place = drive.find({});
    EXPECT_TRUE(place);
    const TreeRoute route("", *folder);
    return FolderReader(scope, arena, state)
        .read({folder, open_for_listing(*place), &route, path_units});
  }

  TempFolder host;
  DriveFolder drive{host.path()};
  TreeScope scope{drive, {"*.*"}, {}};
  TreeArena arena;
  ReadingState state;
  ListedFolder* folder = ListedFolder::make(arena, "", nullptr);
};

}  // namespace

TEST_F(FolderReaderTest, GivesAFolderItsFilesAndSubfolders) {
  host.write("b", "12");
  host.write("a", "1");
  host.make_folder("sub");
  host.make_folder("Sub2");
  EXPECT_EQ(read(), 2U);
  ASSERT_EQ(folder->file_count(), 2U);
  EXPECT_EQ(folder->file(0).name, "a");
  EXPECT_EQ(folder->file(0).size_low, 1U);
  EXPECT_EQ(folder->file(1).name, "b");
  EXPECT_EQ(folder->file(1).size_low, 2U);
  const ListedFolder* sub = folder->first_subfolder();
  ASSERT_NE(sub, nullptr);
  EXPECT_EQ(sub->name(), "sub");
  EXPECT_EQ(sub->parent(), folder);
  ASSERT_NE(sub->next_sibling(), nullptr);
  EXPECT_EQ(sub->next_sibling()->name(), "Sub2");
  EXPECT_EQ(sub->next_sibling()->next_sibling(), nullptr);
}

TEST_F(FolderReaderTest, LeavesOutFilesThatAreGoneWhenTheyAreLookedAt) {
  host.write("a");
  host.make_folder("sub");
  with_failing_calls({SYS_statx}, ENOENT, [this] {
    const TreeRoute route("", *folder);
    HostPlace place;
    place.object = Descriptor(open(host.path().c_str(), O_PATH | O_CLOEXEC));
    FolderReader reader(scope, arena, state);
    EXPECT_EQ(reader.read({folder, open_for_listing(place), &route, 3}), 1U);
  });
  EXPECT_EQ(folder->file_count(), 0U);
}

TEST_F(FolderReaderTest, GivesNothingToAFolderThatIsNotOpen) {
  host.write("a");
  const TreeRoute route("", *folder);
  EXPECT_EQ(FolderReader(scope, arena, state).read({folder, Descriptor(), &route, 3}), 0U);
  EXPECT_EQ(folder->file_count(), 0U);
}

TEST_F(FolderReaderTest, LooksForSubfoldersAsFarAsTheirPatternFits) {
  host.make_folder("sub");
  EXPECT_EQ(read(256), 1U);
  EXPECT_EQ(read(257), 0U);
}

TEST_F(FolderReaderTest, KeepsTheFilesThatWereLookedAtBeforeTheReadingEnded) {
  for (int i = 100; i < 300; ++i) host.write(std::to_string(i));
  const auto place = drive.find({});
  ASSERT_TRUE(place);
  const TreeRoute route("", *folder);
  ReadingState ends_at_70(70);
  FolderReader reader(scope, arena, ends_at_70);
  EXPECT_EQ(reader.read({folder, open_for_listing(*place), &route, 3}), 0U);
  // They are counted by 64: twice that is the first count that reaches 70.
  EXPECT_EQ(ends_at_70.files(), 128U);
  ASSERT_EQ(folder->file_count(), 128U);
  for (std::uint32_t i = 0; i < 128; ++i) {
    ASSERT_EQ(folder->name_of(i), std::to_string(100 + i));
  }
}

TEST_F(FolderReaderTest, TellsTheFolderInWorkAndHowManyFilesItRead) {
  for (const char* name : {"a", "b", "c"}) host.write(name);
  read();
  EXPECT_EQ(state.files(), 3U);
  EXPECT_EQ(state.folder_in_work("C:\\Temp"), "C:\\Temp");
}

TEST_F(FolderReaderTest, ReadsNothingMoreOnceTheReadingHasEnded) {
  host.write("a");
  host.make_folder("sub");
  state.end();
  EXPECT_EQ(read(), 0U);
  EXPECT_EQ(folder->file_count(), 0U);
  EXPECT_EQ(folder->first_subfolder(), nullptr);
}

TEST_F(FolderReaderTest, WalksAFolderOfManyFiles) {
  for (int i = 1000; i < 1300; ++i) host.write("file " + std::to_string(i) + " of many.tmp");
  EXPECT_EQ(read(), 0U);
  ASSERT_EQ(folder->file_count(), 300U);
  for (std::uint32_t i = 0; i < 300; ++i) {
    ASSERT_EQ(folder->name_of(i), "file " + std::to_string(1000 + i) + " of many.tmp");
  }
}

}  // namespace quillvane
