#include "platform/folder/posix/drive_folder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/support/host_faults.h"
#include "tests/support/temp_folder.h"

namespace quillvane {

namespace {

using Parts = std::vector<std::string>;

class DriveFolderTest : public ::testing::Test {
 protected:
  DriveFolderTest() {
    host.write("drive/Windows/Temp/a.tmp", "inside");
    host.write("outside/secret.txt", "secret");
  }

  // Where the names lead, as a host path below the drive.
  [[nodiscard]] std::string find(const Parts& names) const {
    const auto place = DriveFolder(host.path_of("drive")).find(names);
    return place ? place->path : "(nothing)";
  }

  TempFolder host;
};

}  // namespace

TEST_F(DriveFolderTest, FindsNamesInAnyCase) {
  EXPECT_EQ(find({"Windows", "Temp", "a.tmp"}), "Windows/Temp/a.tmp");
  EXPECT_EQ(find({"WINDOWS", "temp", "A.TMP"}), "Windows/Temp/a.tmp");
  EXPECT_EQ(find({"windows", "missing"}), "(nothing)");
  EXPECT_EQ(find({"windows", "temp", "a.tmp", "b"}), "(nothing)");
}

TEST_F(DriveFolderTest, PrefersAnExactMatchAtEachStep) {
  host.write("drive/temp/a");
  host.write("drive/Temp/A");
  EXPECT_EQ(find({"temp", "A"}), "temp/a");
  EXPECT_EQ(find({"Temp", "a"}), "Temp/A");
  EXPECT_EQ(find({"TEMP", "a"}), "Temp/A");
}

TEST_F(DriveFolderTest, IsItselfWithoutNames) {
  EXPECT_EQ(find({}), "");
  const auto place = DriveFolder(host.path_of("drive")).find({});
  ASSERT_TRUE(place);
  EXPECT_TRUE(is_folder(place->status));
}

TEST_F(DriveFolderTest, FollowsLinksThatStayInside) {
  host.make_link("drive/Windows/relative", "Temp");
  host.make_link("drive/Windows/up", "../Windows/./Temp/../Temp/a.tmp");
  host.make_link("drive/absolute", host.path_of("drive/Windows"));
  host.make_link("drive/chain", "absolute/relative");
  host.make_link("drive/root", host.path_of("drive"));
  EXPECT_EQ(find({"Windows", "relative", "a.tmp"}), "Windows/Temp/a.tmp");
  EXPECT_EQ(find({"windows", "UP"}), "Windows/Temp/a.tmp");
  EXPECT_EQ(find({"absolute", "temp"}), "Windows/Temp");
  EXPECT_EQ(find({"chain", "a.tmp"}), "Windows/Temp/a.tmp");
  EXPECT_EQ(find({"root", "root", "Windows"}), "Windows");
}

TEST_F(DriveFolderTest, LeadsNowhereByALinkOutOfTheDrive) {
  host.make_link("drive/absolute", host.path_of("outside"));
  host.make_link("drive/relative", "../outside");
  host.make_link("drive/file", "../outside/secret.txt");
  host.make_link("drive/parent", "..");
  host.make_link("drive/Windows/around", "../../drive/Windows/Temp");
  host.make_link("drive/neighbour", host.path_of("drive") + "2/x");
  host.make_link("drive/dotted", host.path_of("drive/../outside"));
  host.make_link("drive/system", "/");
  host.make_link("drive/chain", "absolute");
  for (const char* name :
       {"absolute", "relative", "file", "parent", "neighbour", "dotted", "system", "chain"}) {
    EXPECT_EQ(find({name}), "(nothing)") << name;
    EXPECT_EQ(find({name, "secret.txt"}), "(nothing)") << name;
  }
  EXPECT_EQ(find({"Windows", "around", "a.tmp"}), "(nothing)");
}

TEST_F(DriveFolderTest, LeadsNowhereByABrokenOrCircularLink) {
  host.make_link("drive/broken", "missing");
  host.make_link("drive/self", "self");
  host.make_link("drive/ping", "pong");
  host.make_link("drive/pong", "ping");
  host.make_link("drive/grows", "grows/grows");
  host.make_link("drive/throughfile", "Windows/Temp/a.tmp/../a.tmp");
  for (const char* name : {"broken", "self", "ping", "pong", "grows", "throughfile"}) {
    EXPECT_EQ(find({name}), "(nothing)") << name;
  }
}

TEST_F(DriveFolderTest, FollowsFortyLinksAndNotMore) {
  host.make_link("drive/1", "Windows");
  for (int i = 2; i <= 41; ++i) {
    host.make_link("drive/" + std::to_string(i), std::to_string(i - 1));
  }
  EXPECT_EQ(find({"40", "Temp"}), "Windows/Temp");
  EXPECT_EQ(find({"41", "Temp"}), "(nothing)");
}

TEST_F(DriveFolderTest, MayItselfBeReachedThroughALink) {
  host.make_link("machine", host.path());
  host.make_link("drive/by_name", host.path_of("machine/drive/Windows"));
  host.make_link("drive/by_place", host.path_of("drive/Windows"));
  const DriveFolder drive(host.path_of("machine/drive/"));
  for (const char* name : {"by_name", "by_place"}) {
    const auto place = drive.find(Parts{name, "temp"});
    ASSERT_TRUE(place) << name;
    EXPECT_EQ(place->path, "Windows/Temp") << name;
  }
}

TEST_F(DriveFolderTest, HasNothingWhenItIsMissing) {
  const DriveFolder drive(host.path_of("no such drive"));
  EXPECT_FALSE(drive.find({}));
  EXPECT_FALSE(drive.find(Parts{"Windows"}));
  EXPECT_FALSE(drive.find_entry(Parts{"Windows"}));
  EXPECT_FALSE(drive.follow("", "Windows"));
}

TEST_F(DriveFolderTest, FindsAnEntryWithoutFollowingIt) {
  host.make_link("drive/Windows/Link", "../../outside/secret.txt");
  const DriveFolder drive(host.path_of("drive"));
  const auto entry = drive.find_entry(Parts{"windows", "link"});
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->folder.path, "Windows");
  EXPECT_EQ(entry->name, "Link");
  const auto itself = open_entry(*entry);
  ASSERT_TRUE(itself);
  EXPECT_TRUE(is_link(itself->status));
  EXPECT_FALSE(drive.find_entry({}));
  EXPECT_FALSE(drive.find_entry(Parts{"windows", "missing"}));
  EXPECT_FALSE(drive.find_entry(Parts{"windows", "temp", "a.tmp", "x"}));
}

TEST_F(DriveFolderTest, TellsTheEntryOfAPlace) {
  const DriveFolder drive(host.path_of("drive"));
  const auto entry = drive.entry_of(*drive.find(Parts{"windows", "temp", "a.tmp"}));
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->folder.path, "Windows/Temp");
  EXPECT_EQ(entry->name, "a.tmp");
  const auto top = drive.entry_of(*drive.find(Parts{"windows"}));
  ASSERT_TRUE(top);
  EXPECT_EQ(top->folder.path, "");
  EXPECT_EQ(top->name, "Windows");
  EXPECT_FALSE(drive.entry_of(*drive.find({})));
}

TEST_F(DriveFolderTest, KeepsToTheFoundFolderWhenALinkTakesItsPlace) {
  host.write("outside/a.tmp", "must stay");
  const DriveFolder drive(host.path_of("drive"));
  const auto entry = drive.find_entry(Parts{"Windows", "Temp", "a.tmp"});
  ASSERT_TRUE(entry);
  std::filesystem::rename(host.path_of("drive/Windows/Temp"), host.path_of("drive/moved"));
  host.make_link("drive/Windows/Temp", host.path_of("outside"));

  EXPECT_EQ(unlinkat(entry->folder.object.number(), entry->name.c_str(), 0), 0);

  EXPECT_FALSE(host.has("drive/moved/a.tmp"));
  EXPECT_EQ(host.read("outside/a.tmp"), "must stay");
}

TEST_F(DriveFolderTest, FindsTheSameOnAKernelThatCannotOpenAPathAtOnce) {
  host.make_link("drive/link", "Windows/Temp");
  host.make_link("drive/out", "../outside");
  with_failing_calls({SYS_openat2}, ENOSYS, [this] {
    EXPECT_EQ(find({"windows", "Temp", "a.tmp"}), "Windows/Temp/a.tmp");
    EXPECT_EQ(find({"link", "a.tmp"}), "Windows/Temp/a.tmp");
    EXPECT_EQ(find({"out", "secret.txt"}), "(nothing)");
  });
}

}  // namespace quillvane
