#include "platform/folder/posix/folder_file_system.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <string>

#include "tests/support/drive_test.h"
#include "tests/support/host_faults.h"

namespace quillvane {

namespace {

class FolderFileSystemTest : public DriveTest {
 protected:
  FolderFileSystemTest() { host.write("drive_c/Temp/a.tmp", "12345"); }
};

}  // namespace

TEST_F(FolderFileSystemTest, TellsTheSizeOfAFile) {
  host.write_sparse("drive_c/Temp/big.dmp", std::uintmax_t{5} << 30U);
  EXPECT_EQ(files.file_size("C:\\Temp\\a.tmp"), 5U);
  EXPECT_EQ(files.file_size("C:\\TEMP\\BIG.DMP"), 5368709120U);
  EXPECT_EQ(files.file_size("C:\\Temp"), std::nullopt);
  EXPECT_EQ(files.file_size("C:\\Temp\\missing"), std::nullopt);
}

TEST_F(FolderFileSystemTest, CopiesAFileOfManyGigabytesWithoutItsHoles) {
  host.write_sparse("drive_c/Temp/big.dmp", std::uintmax_t{5} << 30U);
  std::ofstream(host.path_of("drive_c/Temp/big.dmp"), std::ios::app) << "end";

  ASSERT_TRUE(files.copy_file("C:\\Temp\\big.dmp", "C:\\Temp\\copy.dmp"));

  EXPECT_EQ(files.file_size("C:\\Temp\\copy.dmp"), 5368709123U);
  std::ifstream copy(host.path_of("drive_c/Temp/copy.dmp"), std::ios::binary);
  copy.seekg(-5, std::ios::end);
  std::string end(5, 'x');
  copy.read(end.data(), 5);
  EXPECT_EQ(end, std::string("\0\0end", 5));
  struct stat status;
  ASSERT_EQ(stat(host.path_of("drive_c/Temp/copy.dmp").c_str(), &status), 0);
  EXPECT_LT(status.st_blocks * 512, 1 << 20);
}

TEST_F(FolderFileSystemTest, RemovesAFileInAnyCase) {
  EXPECT_EQ(files.remove_file("c:\\temp\\A.TMP"), RemoveResult::kRemoved);
  EXPECT_FALSE(host.has("drive_c/Temp/a.tmp"));
  EXPECT_EQ(files.remove_file("c:\\temp\\A.TMP"), RemoveResult::kMissing);
}

TEST_F(FolderFileSystemTest, RemovesTheExactMatchOfNamesThatDifferByCase) {
  host.write("drive_c/Temp/A.TMP");
  EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kRemoved);
  EXPECT_TRUE(host.has("drive_c/Temp/A.TMP"));
  EXPECT_FALSE(host.has("drive_c/Temp/a.tmp"));
}

TEST_F(FolderFileSystemTest, NeverRemovesAFolder) {
  EXPECT_EQ(files.remove_file("C:\\Temp"), RemoveResult::kDenied);
  EXPECT_EQ(files.remove_file("C:\\"), RemoveResult::kMissing);
  EXPECT_EQ(files.remove_file("E:\\Temp\\a.tmp"), RemoveResult::kMissing);
  EXPECT_TRUE(host.has("drive_c/Temp/a.tmp"));
}

TEST_F(FolderFileSystemTest, DeniesToRemoveAReadOnlyFile) {
  set_stored_attributes("drive_c/Temp/a.tmp", "0x21");
  EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kDenied);
  EXPECT_FALSE(files.write_file("C:\\Temp\\a.tmp", "x"));
  EXPECT_EQ(host.read("drive_c/Temp/a.tmp"), "12345");
  EXPECT_TRUE(files.set_attributes("C:\\Temp\\a.tmp", 0x80));
  EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kRemoved);
}

TEST_F(FolderFileSystemTest, DeniesToRemoveWhatTheHostKeeps) {
  const AsOrdinaryUser user;
  const TempFolder own;
  own.write("a.tmp");
  ASSERT_EQ(chmod(own.path().c_str(), 0555), 0);
  machine.drives[0].folder = own.path();
  EXPECT_EQ(files.remove_file("C:\\a.tmp"), RemoveResult::kDenied);
  ASSERT_EQ(chmod(own.path().c_str(), 0755), 0);
}

TEST_F(FolderFileSystemTest, TellsWhyTheHostDidNotRemove) {
  const struct {
    int error;
    RemoveResult result;
  } cases[] = {{ENOENT, RemoveResult::kMissing},       {EBUSY, RemoveResult::kInUse},
               {ETXTBSY, RemoveResult::kInUse},        {EIO, RemoveResult::kUnreadable},
               {EROFS, RemoveResult::kWriteProtected}, {EPERM, RemoveResult::kDenied}};
  for (const auto& c : cases) {
    with_failing_calls({SYS_unlinkat}, c.error, [&] {
      EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), c.result) << c.error;
    });
  }
}

TEST_F(FolderFileSystemTest, AFileThatCannotBeLookedAtIsNotTakenForMissing) {
  for (const int error : {EIO, EACCES, ESTALE}) {
    with_failing_calls({SYS_openat2, SYS_openat, SYS_statx}, error, [&] {
      EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kUnreadable) << error;
    });
  }
  EXPECT_TRUE(host.has("drive_c/Temp/a.tmp"));
}

TEST_F(FolderFileSystemTest, ANameOfAnotherCaseInAFolderThatCannotBeListedIsNotTakenForMissing) {
  const AsOrdinaryUser user;
  const TempFolder own;
  own.write("sub/a.tmp");
  ASSERT_EQ(chmod(own.path_of("sub").c_str(), 0311), 0);
  machine.drives[0].folder = own.path();
  EXPECT_EQ(files.remove_file("C:\\sub\\A.TMP"), RemoveResult::kUnreadable);
  EXPECT_TRUE(own.has("sub/a.tmp"));
  EXPECT_EQ(files.remove_file("C:\\sub\\a.tmp"), RemoveResult::kRemoved);
  ASSERT_EQ(chmod(own.path_of("sub").c_str(), 0755), 0);
}

TEST_F(FolderFileSystemTest, AFolderThatMayNotBeEnteredHidesWhetherAFileIsThere) {
  const AsOrdinaryUser user;
  const TempFolder own;
  own.write("sub/a.tmp");
  machine.drives[0].folder = own.path();
  ASSERT_EQ(chmod(own.path_of("sub").c_str(), 0), 0);
  EXPECT_EQ(files.remove_file("C:\\sub\\a.tmp"), RemoveResult::kUnreadable);
  EXPECT_EQ(files.remove_file("C:\\sub\\b.tmp"), RemoveResult::kUnreadable);
  ASSERT_EQ(chmod(own.path_of("sub").c_str(), 0755), 0);
}

TEST_F(FolderFileSystemTest, TellsWhyAFileCannotBeRead) {
  host.make_link("drive_c/Temp/broken.tmp", "missing.tmp");
  EXPECT_EQ(files.read_file("C:\\Temp\\broken.tmp"), ReadFailure::kUnreadable);
  EXPECT_EQ(files.read_file("C:\\Temp\\missing.tmp"), ReadFailure::kMissing);
  const struct {
    int error;
    ReadFailure why;
  } cases[] = {{EIO, ReadFailure::kUnreadable}, {EACCES, ReadFailure::kDenied}};
  for (const auto& c : cases) {
    with_failing_calls({SYS_openat2, SYS_openat, SYS_statx}, c.error, [&] {
      EXPECT_EQ(files.read_file("C:\\Temp\\a.tmp"), c.why);
      EXPECT_EQ(files.read_file("C:\\Temp\\missing.tmp"), c.why);
    });
    with_failing_calls({SYS_read}, c.error,
                       [&] { EXPECT_EQ(files.read_file("C:\\Temp\\a.tmp"), c.why); });
  }
}

TEST_F(FolderFileSystemTest, AFileThatMayNotBeReadIsDeniedAndNotMissing) {
  const AsOrdinaryUser user;
  const TempFolder own;
  own.write("sub/a.tmp");
  machine.drives[0].folder = own.path();
  ASSERT_EQ(chmod(own.path_of("sub/a.tmp").c_str(), 0), 0);
  EXPECT_EQ(files.read_file("C:\\sub\\A.tmp"), ReadFailure::kDenied);
  ASSERT_EQ(chmod(own.path_of("sub").c_str(), 0), 0);
  EXPECT_EQ(files.read_file("C:\\sub\\a.tmp"), ReadFailure::kDenied);
  EXPECT_EQ(files.read_file("C:\\sub\\b.tmp"), ReadFailure::kDenied);
  ASSERT_EQ(chmod(own.path_of("sub").c_str(), 0755), 0);
}

TEST_F(FolderFileSystemTest, ReadsAFileInUseAndChangesNothingOfIt) {
  machine.in_use = {"c:\\TEMP\\a.tmp"};
  EXPECT_EQ(files.read_file("C:\\Temp\\a.tmp"), "12345");
  EXPECT_EQ(files.file_size("C:\\Temp\\a.tmp"), 5U);
  EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kInUse);
  EXPECT_FALSE(files.write_file("C:\\Temp\\a.tmp", "x"));
  EXPECT_FALSE(files.set_attributes("C:\\Temp\\a.tmp", 0x21));
  EXPECT_EQ(host.read("drive_c/Temp/a.tmp"), "12345");
  EXPECT_EQ(files.attributes("C:\\Temp\\a.tmp"), 0x20U);
  machine.in_use.clear();
  EXPECT_EQ(files.remove_file("C:\\Temp\\a.tmp"), RemoveResult::kRemoved);
}

TEST_F(FolderFileSystemTest, DoesNotListADeniedFolderButOpensItsFiles) {
  machine.denied = {"C:\\temp"};
  EXPECT_EQ(list("C:\\Temp"), Names{});
  EXPECT_EQ(files.read_tree("C:\\Temp", "*.*"), nullptr);
  EXPECT_EQ(list("C:\\"), Names{"Temp"});
  EXPECT_EQ(files.read_file("C:\\TEMP\\A.TMP"), "12345");
  EXPECT_EQ(files.attributes("C:\\Temp"), 0x10U);
}

TEST_F(FolderFileSystemTest, RemovesALinkAndNotWhereItLeads) {
  host.make_link("drive_c/link.tmp", "Temp/a.tmp");
  set_stored_attributes("drive_c/Temp/a.tmp", "0x21");
  EXPECT_EQ(files.attributes("C:\\link.tmp"), 0x20U);
  EXPECT_FALSE(files.set_attributes("C:\\link.tmp", 0x80));
  EXPECT_EQ(files.remove_file("C:\\link.tmp"), RemoveResult::kRemoved);
  EXPECT_FALSE(host.has("drive_c/link.tmp"));
  EXPECT_EQ(host.read("drive_c/Temp/a.tmp"), "12345");
  EXPECT_EQ(stored_attributes("drive_c/Temp/a.tmp"), "0x21");
}

TEST_F(FolderFileSystemTest, KeepsALinkWhoseFileIsInUse) {
  host.make_link("drive_c/link.tmp", "Temp/a.tmp");
  machine.in_use = {"C:\\link.tmp"};
  EXPECT_EQ(files.remove_file("C:\\link.tmp"), RemoveResult::kInUse);
  EXPECT_TRUE(host.has("drive_c/link.tmp"));
}

TEST_F(FolderFileSystemTest, DeniesToRemoveALinkToAFolder) {
  host.make_link("drive_c/link", "Temp");
  EXPECT_EQ(files.attributes("C:\\link"), 0x10U);
  EXPECT_EQ(files.remove_file("C:\\link"), RemoveResult::kDenied);
  EXPECT_TRUE(host.has("drive_c/link"));
  EXPECT_EQ(files.remove_file("C:\\link\\a.tmp"), RemoveResult::kRemoved);
  EXPECT_FALSE(host.has("drive_c/Temp/a.tmp"));
}

TEST_F(FolderFileSystemTest, TakesALinkOutOfTheDriveForMissing) {
  host.write("outside/a.tmp", "secret");
  host.make_link("drive_c/folder", host.path_of("outside"));
  host.make_link("drive_c/file.tmp", "../outside/a.tmp");
  host.make_link("drive_c/other", host.path_of("drive_d"));
  for (const char* path : {"C:\\folder", "C:\\file.tmp", "C:\\folder\\a.tmp", "C:\\other"}) {
    EXPECT_EQ(files.attributes(path), std::nullopt) << path;
    EXPECT_EQ(files.file_size(path), std::nullopt) << path;
    EXPECT_FALSE(files.read_file(path)) << path;
    EXPECT_FALSE(files.set_attributes(path, 0x80)) << path;
    EXPECT_FALSE(files.write_file(path, "x")) << path;
    EXPECT_EQ(files.remove_file(path), RemoveResult::kMissing) << path;
    EXPECT_EQ(list(path), Names{}) << path;
    EXPECT_EQ(files.read_tree(path, "*.*"), nullptr) << path;
  }
  EXPECT_EQ(list("C:\\"), Names{"Temp"});
  EXPECT_EQ(walk("C:\\"), Names{"Temp\\a.tmp"});
  EXPECT_EQ(host.read("outside/a.tmp"), "secret");
  EXPECT_TRUE(host.has("drive_c/file.tmp"));
}

TEST_F(FolderFileSystemTest, TakesWhatIsNeitherFileNorFolderForMissing) {
  ASSERT_EQ(mkfifo(host.path_of("drive_c/Temp/pipe").c_str(), 0600), 0);
  EXPECT_EQ(list("C:\\Temp"), Names{"a.tmp"});
  EXPECT_EQ(walk("C:\\Temp"), Names{"a.tmp"});
  EXPECT_EQ(files.attributes("C:\\Temp\\pipe"), std::nullopt);
  EXPECT_EQ(files.file_size("C:\\Temp\\pipe"), std::nullopt);
  EXPECT_EQ(files.read_file("C:\\Temp\\pipe"), ReadFailure::kUnreadable);
  EXPECT_FALSE(files.write_file("C:\\Temp\\pipe", "x"));
  EXPECT_EQ(files.remove_file("C:\\Temp\\pipe"), RemoveResult::kMissing);
  EXPECT_TRUE(host.has("drive_c/Temp/pipe"));
}

TEST_F(FolderFileSystemTest, PassesNamesThatAreNoUtf8) {
  host.write("drive_c/Temp/\xFF\xFE.tmp", "odd");
  EXPECT_EQ(list("C:\\Temp"), (Names{"a.tmp", "\xFF\xFE.tmp"}));
  EXPECT_EQ(files.read_file("C:\\Temp\\\xFF\xFE.TMP"), "odd");
  EXPECT_EQ(files.remove_file("C:\\Temp\\\xFF\xFE.tmp"), RemoveResult::kRemoved);
}

TEST_F(FolderFileSystemTest, CannotOpenWhatIsListedBeyondThePathLimit) {
  const std::string name(100, 'n');
  const std::string long_name(60, 'f');  // with the folder's 205 characters 265
  const std::string folder = "C:\\" + name + "\\" + name;
  host.write("drive_c/" + name + "/" + name + "/" + long_name, "x");
  EXPECT_EQ(list(folder), Names{long_name});
  EXPECT_EQ(files.file_size(folder + "\\" + long_name), std::nullopt);
  EXPECT_EQ(files.read_file(folder + "\\" + long_name), ReadFailure::kTooLong);
  EXPECT_FALSE(files.write_file(folder + "\\" + long_name, "y"));
  EXPECT_EQ(files.remove_file(folder + "\\" + long_name), RemoveResult::kTooLong);
  EXPECT_TRUE(host.has("drive_c/" + name + "/" + name + "/" + long_name));
}

TEST_F(FolderFileSystemTest, SeesAMachineThatChanges) {
  EXPECT_EQ(list("E:\\"), Names{});
  host.write("drive_e/new.txt");
  machine.drives.push_back({'E', DriveType::kRemovable, host.path_of("drive_e"), {}, {}});
  EXPECT_EQ(list("E:\\"), Names{"new.txt"});
}

namespace {

// A folder of many files.
class ManyRemovalsTest : public DriveTest {
 protected:
  ManyRemovalsTest() {
    for (std::size_t i = 0; i < 400; ++i) {
      names.push_back("file" + std::to_string(i) + ".tmp");
      host.write("drive_c/Temp/" + names.back(), "x");
      paths.push_back("C:\\Temp\\" + names.back());
    }
  }

  void move(const char* from, const char* to) const {
    ASSERT_EQ(std::rename(host.path_of(from).c_str(), host.path_of(to).c_str()), 0);
  }

  Names names;
  Names paths;
};

}  // namespace

TEST_F(ManyRemovalsTest, LeavesWhatIsReadOnlyOrInUse) {
  set_stored_attributes("drive_c/Temp/file150.tmp", "0x21");
  machine.in_use = {"c:\\temp\\FILE250.tmp"};
  for (std::size_t i = 0; i < 400; ++i) {
    const RemoveResult expected = i == 150   ? RemoveResult::kDenied
                                  : i == 250 ? RemoveResult::kInUse
                                             : RemoveResult::kRemoved;
    ASSERT_EQ(files.remove_file(paths[i]), expected) << i;
    ASSERT_EQ(files.file_size(paths[i]).has_value(), expected != RemoveResult::kRemoved) << i;
  }
  EXPECT_EQ(list("C:\\Temp"), (Names{"file150.tmp", "file250.tmp"}));
}

TEST_F(ManyRemovalsTest, ReadTheFolderOnceHoweverManyThereAre) {
  ASSERT_EQ(files.remove_file(paths[0]), RemoveResult::kRemoved);
  ASSERT_EQ(files.file_size("C:\\Temp\\missing"), std::nullopt);
  // From here on no folder can be read any more.
  with_failing_calls({SYS_getdents64}, EIO, [this] {
    for (std::size_t i = 1; i < 400; ++i) {
      ASSERT_EQ(files.remove_file(paths[i]), RemoveResult::kRemoved) << i;
      ASSERT_EQ(files.file_size(paths[i]), std::nullopt) << i;
      ASSERT_EQ(files.attributes(paths[i]), std::nullopt) << i;
      ASSERT_EQ(files.remove_file(paths[i]), RemoveResult::kMissing) << i;
    }
  });
}

TEST_F(ManyRemovalsTest, BySpellingsInAnotherCaseReadTheFolderOnceToo) {
  ASSERT_EQ(files.remove_file("c:\\TEMP\\FILE0.TMP"), RemoveResult::kRemoved);
  with_failing_calls({SYS_getdents64}, EIO, [this] {
    for (std::size_t i = 1; i < 400; ++i) {
      const std::string path = "c:\\TEMP\\FILE" + std::to_string(i) + ".TMP";
      ASSERT_EQ(files.read_file(path), "x") << i;
      ASSERT_EQ(files.remove_file(path), RemoveResult::kRemoved) << i;
      ASSERT_EQ(files.file_size(path), std::nullopt) << i;
    }
  });
}

TEST_F(ManyRemovalsTest, DoNotTakeAFileForItsTwinInAnotherCase) {
  for (int i = 0; i < 400; i += 50) host.write("drive_c/Temp/FILE" + std::to_string(i) + ".TMP");
  for (std::size_t i = 0; i < 400; ++i) {
    ASSERT_EQ(files.remove_file(paths[i]), RemoveResult::kRemoved) << i;
    ASSERT_EQ(files.file_size(paths[i]), std::nullopt) << i;
    ASSERT_EQ(files.attributes(paths[i]), std::nullopt) << i;
    ASSERT_FALSE(files.can_open(paths[i])) << i;
    ASSERT_EQ(files.remove_file(paths[i]), RemoveResult::kMissing) << i;
  }
  EXPECT_EQ(list("C:\\Temp").size(), 8U);
}

TEST_F(ManyRemovalsTest, MeanTheOneFileAlsoWhenItIsSpeltOtherwise) {
  host.write("drive_c/Temp/FILE7.TMP", "twin");
  const std::string path = "C:\\temp\\File7.tmp";
  // Without an exact match the first by its bytes is meant.
  EXPECT_EQ(files.remove_file(path), RemoveResult::kRemoved);
  EXPECT_FALSE(host.has("drive_c/Temp/FILE7.TMP"));
  EXPECT_EQ(files.file_size(path), std::nullopt);
  EXPECT_EQ(files.remove_file(path), RemoveResult::kMissing);
  EXPECT_EQ(files.remove_file(paths[7]), RemoveResult::kRemoved);
}

TEST_F(ManyRemovalsTest, FindAFileThatCameUnderAnotherCaseAfterwards) {
  ASSERT_EQ(files.remove_file(paths[0]), RemoveResult::kRemoved);
  ASSERT_EQ(files.file_size(paths[0]), std::nullopt);
  host.write("drive_c/Temp/FILE0.tmp", "new");
  EXPECT_EQ(files.file_size(paths[0]), 3U);
  EXPECT_EQ(files.remove_file(paths[0]), RemoveResult::kRemoved);
}

TEST_F(ManyRemovalsTest, FindAFileThatIsThereAgain) {
  ASSERT_EQ(files.remove_file(paths[0]), RemoveResult::kRemoved);
  host.write("drive_c/Temp/file0.tmp", "again");
  EXPECT_EQ(files.file_size(paths[0]), 5U);
  ASSERT_EQ(files.remove_file(paths[1]), RemoveResult::kRemoved);
  ASSERT_TRUE(files.write_file(paths[1], "written"));
  EXPECT_EQ(files.file_size(paths[1]), 7U);
}

TEST_F(ManyRemovalsTest, HeedWhatChangedBetweenThem) {
  ASSERT_EQ(files.remove_file(paths[0]), RemoveResult::kRemoved);
  ASSERT_TRUE(files.set_attributes(paths[1], kAttributeReadOnly));
  EXPECT_EQ(files.remove_file(paths[1]), RemoveResult::kDenied);
  machine.in_use = {paths[2]};
  EXPECT_EQ(files.remove_file(paths[2]), RemoveResult::kInUse);
}

TEST_F(ManyRemovalsTest, EndInAFolderThatWasMovedAway) {
  ASSERT_EQ(files.remove_file(paths[0]), RemoveResult::kRemoved);
  move("drive_c/Temp", "drive_c/Kept");
  EXPECT_EQ(files.remove_file(paths[1]), RemoveResult::kMissing);
  EXPECT_TRUE(host.has("drive_c/Kept/file1.tmp"));
  // Another folder takes its place.
  host.write("drive_c/Temp/file1.tmp", "other");
  EXPECT_EQ(files.remove_file(paths[1]), RemoveResult::kRemoved);
  EXPECT_FALSE(host.has("drive_c/Temp/file1.tmp"));
  EXPECT_TRUE(host.has("drive_c/Kept/file1.tmp"));
}

TEST_F(ManyRemovalsTest, EndBelowAFolderOrADriveThatWasMovedAway) {
  host.write("drive_c/a/b/c/1.tmp");
  host.write("drive_c/a/b/c/2.tmp");
  host.write("drive_c/a/b/c/3.tmp");
  ASSERT_EQ(files.remove_file("C:\\a\\b\\c\\1.tmp"), RemoveResult::kRemoved);
  move("drive_c/a", "drive_c/kept");
  EXPECT_EQ(files.remove_file("C:\\a\\b\\c\\2.tmp"), RemoveResult::kMissing);
  EXPECT_EQ(files.remove_file("C:\\kept\\b\\c\\2.tmp"), RemoveResult::kRemoved);
  move("drive_c", "elsewhere");
  EXPECT_EQ(files.remove_file("C:\\kept\\b\\c\\3.tmp"), RemoveResult::kMissing);
  EXPECT_TRUE(host.has("elsewhere/kept/b/c/3.tmp"));
}

TEST_F(ManyRemovalsTest, EndWhereALinkTakesTheFoldersPlace) {
  ASSERT_EQ(files.remove_file(paths[0]), RemoveResult::kRemoved);
  move("drive_c/Temp", "outside");
  host.make_link("drive_c/Temp", host.path_of("outside"));
  EXPECT_EQ(files.remove_file(paths[1]), RemoveResult::kMissing);
  EXPECT_TRUE(host.has("outside/file1.tmp"));
}

TEST_F(ManyRemovalsTest, TakePathsThatAreNoPlainOnes) {
  ASSERT_EQ(files.remove_file(paths[0]), RemoveResult::kRemoved);
  for (const char* path : {"", "C:", "C:\\", "\\", "C:\\Temp\\", "C:\\Temp\\..", "C:\\Temp\\."}) {
    EXPECT_NE(files.remove_file(path), RemoveResult::kRemoved) << path;
  }
  EXPECT_EQ(files.remove_file("C:\\Temp/file1.tmp"), RemoveResult::kRemoved);
  EXPECT_EQ(files.remove_file("C:\\Temp\\..\\Temp\\file2.tmp"), RemoveResult::kRemoved);
}

}  // namespace quillvane
