#include "platform/folder/posix/folder_walk.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <string>
#include <thread>

#include "tests/support/drive_test.h"
#include "tests/support/host_faults.h"

namespace quillvane {

namespace {

class FolderWalkTest : public DriveTest {
 protected:
  // A file in each of `count` folders that lie in each other by tens.
  void add_folders(int count) {
    for (int i = 1; i <= count; ++i) {
      std::string path = "drive_c/";
      for (const char digit : std::to_string(i)) path += std::string("d") + digit + "/";
      host.write(path + "f" + std::to_string(i), std::string(static_cast<std::size_t>(i % 7), 'x'));
    }
  }

  // Every name, size and time of a tree, folders before their contents.
  static std::string all_of(const ListedFolder& folder) {
    std::string text = std::string(folder.name()) + "(";
    for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
      const ListedFile file = folder.file(i);
      text += std::string(file.name) + ":" + std::to_string(file.size_low) + ":" +
              std::to_string(file.modified.ticks) + " ";
    }
    for (const auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
      text += all_of(*sub);
    }
    return text + ")";
  }
};

}  // namespace

TEST_F(FolderWalkTest, FindsFilesAndFoldersInOrder) {
  for (const char* name : {"b/z", "b/Y", "A/1", "a.txt", "B.txt", "c/d/e"}) {
    host.write(std::string("drive_c/x/") + name);
  }
  host.make_folder("drive_c/x/empty");
  EXPECT_EQ(walk("C:\\X\\"), (Names{"A\\1", "b\\Y", "b\\z", "c\\d\\e", "a.txt", "B.txt"}));
}

TEST_F(FolderWalkTest, TellsSizeAndTimesOfAFile) {
  host.write_sparse("drive_c/x/big.dmp", (std::uintmax_t{5} << 32U) + 7);
  const timespec times[] = {{1'234'567'890, 0}, {1'000'000'000, 500}};
  ASSERT_EQ(utimensat(AT_FDCWD, host.path_of("drive_c/x/big.dmp").c_str(), times, 0), 0);
  const auto tree = files.read_tree("C:\\x", "*.*");
  const auto listed = files.list_folder("C:\\x", "*.*");
  ASSERT_TRUE(tree);
  ASSERT_EQ(tree->root().file_count(), 1U);
  const ListedFile file = tree->root().file(0);
  EXPECT_EQ(file.name, "big.dmp");
  EXPECT_EQ(file.size_high, 5U);
  EXPECT_EQ(file.size_low, 7U);
  EXPECT_EQ(file.accessed.ticks, 128'790'414'900'000'000);
  EXPECT_EQ(file.modified.ticks, 126'444'736'000'000'005);
  ASSERT_EQ(listed.size(), 1U);
  EXPECT_EQ(file.created, listed[0].created);
}

TEST_F(FolderWalkTest, PicksFilesByThePatternAndFoldersAll) {
  for (const char* name : {"a.tmp", "a.txt", "sub.tmp/b.TMP", "sub/c.tmpx", "sub/d.log"}) {
    host.write(std::string("drive_c/x/") + name);
  }
  EXPECT_EQ(walk("C:\\x", "*.tmp"), (Names{"sub\\c.tmpx", "sub.tmp\\b.TMP", "a.tmp"}));
}

TEST_F(FolderWalkTest, TellsWhichOfSeveralPatternsMatch) {
  for (const char* name : {"a.tmp", "b.log", "b.txt", "sub/c.tmp"}) {
    host.write(std::string("drive_c/x/") + name);
  }
  const auto tree = files.read_tree_for("C:\\x", {"*.tmp", "*.log", "?.t*"});
  EXPECT_EQ(files_of(tree), (Names{"sub\\c.tmp", "a.tmp", "b.log", "b.txt"}));
  const ListedFolder& root = tree->root();
  const bool expected[3][3] = {{true, false, true}, {false, true, false}, {false, false, true}};
  for (unsigned file = 0; file < 3; ++file) {
    for (unsigned pattern = 0; pattern < 3; ++pattern) {
      EXPECT_EQ(root.matches(file, pattern), expected[file][pattern]) << file << " " << pattern;
    }
  }
  EXPECT_TRUE(root.first_subfolder()->matches(0, 0));
  EXPECT_FALSE(root.first_subfolder()->matches(0, 1));
}

TEST_F(FolderWalkTest, RefusesMorePatternsThanATreeCanTell) {
  host.write("drive_c/a.tmp");
  EXPECT_NE(files.read_tree_for("C:\\", std::vector<std::string>(32, "*.*")), nullptr);
  EXPECT_EQ(files.read_tree_for("C:\\", std::vector<std::string>(33, "*.*")), nullptr);
}

TEST_F(FolderWalkTest, IsTheSameWithAnyNumberOfThreads) {
  add_folders(250);
  host.make_link("drive_c/d5/link", "../d6");
  host.make_link("drive_c/d6/loop", "../d6");
  const auto alone = FolderFileSystem(machine, 1).read_tree("C:\\", "*.*");
  ASSERT_TRUE(alone);
  ASSERT_EQ(files_of(alone).size(), 250U + 11U);  // 6 and 60 to 69 a second time
  for (const unsigned threads : {2U, 3U, 8U}) {
    for (int run = 0; run < 5; ++run) {
      const auto tree = FolderFileSystem(machine, threads).read_tree("C:\\", "*.*");
      ASSERT_TRUE(tree);
      EXPECT_TRUE(all_of(tree->root()) == all_of(alone->root())) << threads;
    }
  }
}

TEST_F(FolderWalkTest, ReadsAllWhenTheHostGivesNoThreads) {
  add_folders(100);
  const FolderFileSystem wide(machine, 4);
  with_failing_calls({SYS_clone, SYS_clone3}, EAGAIN,
                     [&] { EXPECT_EQ(files_of(wide.read_tree("C:\\", "*.*")).size(), 100U); });
}

TEST_F(FolderWalkTest, HoldsNoMoreFoldersOpenThanItIsDeep) {
  add_folders(250);
  rlimit few{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &few), 0);
  const rlimit usual = few;
  few.rlim_cur = 40;
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
  const auto tree = FolderFileSystem(machine, 4).read_tree("C:\\", "*.*");
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &usual), 0);
  EXPECT_EQ(files_of(tree).size(), 250U);
}

TEST_F(FolderWalkTest, LeavesADeniedFolderEmpty) {
  host.write("drive_c/x/open/a");
  host.write("drive_c/x/shut/b");
  host.write("drive_c/x/shut/below/c");
  machine.denied = {"C:\\X\\SHUT"};
  EXPECT_EQ(walk("C:\\x"), Names{"open\\a"});
  EXPECT_EQ(walk("C:\\x\\shut\\below"), Names{"c"});
  EXPECT_EQ(walk("C:\\x\\shut"), Names{"(no tree)"});
}

TEST_F(FolderWalkTest, LeavesAFolderEmptyThatTheHostDoesNotShow) {
  const AsOrdinaryUser user;
  const TempFolder own;
  own.write("shut/a");
  own.write("open/b");
  ASSERT_EQ(chmod(own.path_of("shut").c_str(), 0), 0);
  machine.drives[0].folder = own.path();
  EXPECT_EQ(walk("C:\\"), Names{"open\\b"});
  EXPECT_EQ(walk("C:\\shut"), Names{"(no tree)"});
  ASSERT_EQ(chmod(own.path_of("shut").c_str(), 0755), 0);
}

TEST_F(FolderWalkTest, GivesNoTreeForWhatIsNoFolder) {
  host.write("drive_c/a.tmp");
  for (const char* folder : {"C:\\a.tmp", "C:\\missing", "E:\\", "Temp", ""}) {
    EXPECT_EQ(walk(folder), Names{"(no tree)"}) << folder;
  }
}

TEST_F(FolderWalkTest, EndsWhereThePathIsTooLong) {
  const std::string name(124, 'n');
  const std::string inner(125, 'i');
  const std::string path = "drive_c/" + name + "/" + inner;
  host.write(path + "/0.log");
  host.write(path + "/s/1.log");
  host.write(path + "/ss/2.log");
  // 3 + 125 + 126 = 254 with the backslash; "s" makes 256 and "ss" 257 of it.
  EXPECT_EQ(walk("C:\\", "*.*"),
            (Names{name + "\\" + inner + "\\s\\1.log", name + "\\" + inner + "\\0.log"}));
  EXPECT_EQ(walk("C:\\", "*.log"), Names{name + "\\" + inner + "\\0.log"});
  EXPECT_EQ(walk("C:\\", "*"),
            (Names{name + "\\" + inner + "\\s\\1.log", name + "\\" + inner + "\\ss\\2.log",
                   name + "\\" + inner + "\\0.log"}));
  // Too long for files in the drive itself, while its folders are found by "*.*".
  EXPECT_EQ(walk("C:\\", std::string(257, '?')), Names{});
}

TEST_F(FolderWalkTest, MarksAFileOnlyForPatternsThatThePathHasRoomFor) {
  const std::string name(124, 'n');
  const std::string inner(127, 'i');
  host.write("drive_c/" + name + "/" + inner + "/a.log");
  // 256 with the backslash: "*.*" makes 259 of it and "*.log" 261.
  const auto tree = files.read_tree_for("C:\\" + name, {"*.log", "*.*"});
  ASSERT_EQ(files_of(tree), Names{inner + "\\a.log"});
  EXPECT_FALSE(tree->root().first_subfolder()->matches(0, 0));
  EXPECT_TRUE(tree->root().first_subfolder()->matches(0, 1));
}

TEST_F(FolderWalkTest, FindsWhatStaysWhileTheRestChanges) {
  Names staying;
  for (int i = 10; i < 50; ++i) {
    staying.push_back(std::to_string(i) + "\\stays");
    host.write("drive_c/x/" + std::to_string(i) + "/stays");
  }
  std::atomic<bool> enough = false;
  std::thread other([&] {
    const std::string folder = host.path_of("drive_c/x/20/");
    while (!enough) {
      std::filesystem::create_directories(folder + "comes/and");
      std::filesystem::create_symlink("..", folder + "comes/link");
      host.write("drive_c/x/20/goes", "soon");
      std::filesystem::remove_all(folder + "comes");
      std::filesystem::remove(folder + "goes");
    }
  });
  const FolderFileSystem wide(machine, 2);
  for (int run = 0; run < 100; ++run) {
    Names found = files_of(wide.read_tree("C:\\x", "*.*"));
    std::erase_if(found, [](const std::string& name) { return name == "20\\goes"; });
    ASSERT_EQ(found, staying);
  }
  enough = true;
  other.join();
}

}  // namespace quillvane
