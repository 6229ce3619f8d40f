#include "platform/folder/posix/tree_route.h"

#include <fcntl.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "platform/folder/posix/folder_walk.h"
#include "tests/support/drive_test.h"

namespace quillvane {

namespace {

class TreeRouteTest : public DriveTest {};

}  // namespace

TEST_F(TreeRouteTest, KnowsWhereAFolderLies) {
  TreeArena arena;
  ListedFolder* top = ListedFolder::make(arena, "", nullptr);
  ListedFolder* inner = ListedFolder::make(arena, "inner", top);
  ListedFolder* deep = ListedFolder::make(arena, "deep", inner);
  const TreeRoute from_drive("", *top);
  EXPECT_EQ(from_drive.path_of(*top), "");
  EXPECT_EQ(from_drive.path_of(*deep), "inner/deep");
  const TreeRoute from_folder("Windows/Temp", *top);
  EXPECT_EQ(from_folder.path_of(*deep), "Windows/Temp/inner/deep");
  const TreeRoute behind_link("Users/User", *inner, {HostIdentity{}});
  EXPECT_EQ(behind_link.path_of(*inner), "Users/User");
  EXPECT_EQ(behind_link.path_of(*deep), "Users/User/deep");
}

TEST_F(TreeRouteTest, EntersALinkLikeAFolder) {
  host.write("drive_c/real/1");
  host.write("drive_c/real/sub/2");
  host.make_link("drive_c/x/absolute", host.path_of("drive_c/real"));
  host.make_link("drive_c/x/relative", "../real/sub");
  host.make_link("drive_c/x/to_link", "absolute");
  host.make_link("drive_c/x/file", "../real/1");
  EXPECT_EQ(walk("C:\\x"), (Names{"absolute\\sub\\2", "absolute\\1", "relative\\2",
                                  "to_link\\sub\\2", "to_link\\1", "file"}));
}

TEST_F(TreeRouteTest, ReadsLinksBehindALinkFromWhereTheyLie) {
  host.write("drive_c/far/target/1");
  host.make_link("drive_c/far/real/onward", "../target");
  host.make_link("drive_c/x/link", "../far/real");
  EXPECT_EQ(walk("C:\\x"), Names{"link\\onward\\1"});
}

TEST_F(TreeRouteTest, BeginsBehindALinkWhenTheFolderIsOne) {
  host.write("drive_c/real/sub/1");
  host.make_link("drive_c/real/sub/up", "..");
  host.make_link("drive_c/link", "real");
  EXPECT_EQ(walk("C:\\LINK"), Names{"sub\\1"});
}

TEST_F(TreeRouteTest, LeavesOutLinksThatLeadNowhereOrOut) {
  host.write("outside/1");
  host.write("drive_c/x/2");
  host.make_link("drive_c/x/out", host.path_of("outside"));
  host.make_link("drive_c/x/out_file", "../../outside/1");
  host.make_link("drive_c/x/broken", "missing");
  host.make_link("drive_c/x/other_drive", host.path_of("drive_d"));
  const auto tree = files.read_tree("C:\\x", "*.*");
  EXPECT_EQ(files_of(tree), Names{"2"});
  EXPECT_EQ(tree->root().first_subfolder(), nullptr);
  EXPECT_FALSE(tree->left_out_loops());
}

TEST_F(TreeRouteTest, DoesNotEnterAFolderAgainThatALinkLeadsBackTo) {
  host.write("drive_c/x/a/1");
  host.write("drive_c/x/a/b/2");
  host.make_link("drive_c/x/a/b/up", "..");
  host.make_link("drive_c/x/a/b/top", "../..");
  host.make_link("drive_c/x/a/b/self", ".");
  const auto tree = files.read_tree("C:\\x", "*.*");
  EXPECT_EQ(files_of(tree), (Names{"a\\b\\2", "a\\1"}));
  EXPECT_TRUE(tree->left_out_loops());
}

TEST_F(TreeRouteTest, DoesNotDoubleTheWorkByTwoLinksToTheirFolder) {
  host.write("drive_c/x/1");
  host.make_link("drive_c/x/a", ".");
  host.make_link("drive_c/x/b", host.path_of("drive_c/x"));
  EXPECT_EQ(walk("C:\\x"), Names{"1"});
}

TEST_F(TreeRouteTest, EndsWhereFoldersAreLinkedToEachOther) {
  host.write("drive_c/x/a/1");
  host.write("drive_c/x/b/2");
  host.make_link("drive_c/x/a/to_b", "../b");
  host.make_link("drive_c/x/b/to_a", "../a");
  EXPECT_EQ(walk("C:\\x"), (Names{"a\\to_b\\2", "a\\1", "b\\to_a\\1", "b\\2"}));
}

TEST_F(TreeRouteTest, DoesNotEnterAFolderAgainThatLiesBehindALink) {
  // The walk is in "d" by the link; the second link leads above it, and "d" is met as a folder.
  host.write("drive_c/data/d/1");
  host.write("drive_c/data/2");
  host.make_link("drive_c/data/d/above", "..");
  host.make_link("drive_c/x/link", "../data/d");
  EXPECT_EQ(walk("C:\\x"), (Names{"link\\above\\2", "link\\1"}));
}

TEST_F(TreeRouteTest, EntersAFolderAboveTheWalkOnce) {
  host.write("drive_c/data/x/1");
  host.write("drive_c/data/2");
  host.make_link("drive_c/data/x/above", "..");
  EXPECT_EQ(walk("C:\\data\\x"), (Names{"above\\2", "1"}));
}

// --- Links that multiply.

TEST_F(TreeRouteTest, ReadsEveryFolderWhereLinksMultiplyAndPassesTheRestOver) {
  // 18 folders with two links to the next one: 262,144 ways to the last.
  for (int i = 1; i <= 18; ++i) {
    const std::string folder = "drive_c/x/f" + std::to_string(i);
    host.write(folder + "/" + std::to_string(i) + ".tmp");
    if (i == 18) break;
    const std::string next = "../f" + std::to_string(i + 1);
    host.make_link(folder + "/a", next);
    host.make_link(folder + "/b", next);
  }
  for (const unsigned threads : {1U, 4U}) {
    const auto tree = FolderFileSystem(machine, threads).read_tree("C:\\x\\f1", "*.*");
    ASSERT_NE(tree, nullptr);
    EXPECT_TRUE(tree->left_out_links());
    EXPECT_FALSE(tree->left_out_loops());
    EXPECT_FALSE(tree->ended_early());
    const Names found = files_of(tree);
    // At most 20,000 entries are read again, a file and two links in each folder.
    EXPECT_LT(found.size(), 10'000U);
    for (int i = 1; i <= 18; ++i) {
      const std::string name = std::to_string(i) + ".tmp";
      EXPECT_TRUE(std::any_of(found.begin(), found.end(), [&](const std::string& path) {
        return path == name || path.ends_with("\\" + name);
      })) << name;
    }
  }
}

TEST_F(TreeRouteTest, WhatIsPassedOverDoesNotDependOnTheThreads) {
  for (int i = 1; i <= 16; ++i) {
    const std::string folder = "drive_c/x/f" + std::to_string(i);
    host.write(folder + "/" + std::to_string(i) + ".tmp");
    host.make_link(folder + "/a", "../f" + std::to_string(i + 1));
    host.make_link(folder + "/b", "../f" + std::to_string(i + 1));
  }
  host.write("drive_c/x/f17/17.tmp");
  const Names alone = files_of(FolderFileSystem(machine, 1).read_tree("C:\\x", "*.*"));
  EXPECT_EQ(files_of(FolderFileSystem(machine, 4).read_tree("C:\\x", "*.*")), alone);
}

TEST_F(TreeRouteTest, ManyLinksToOneFolderAreAllEntered) {
  for (int i = 0; i < 20; ++i) host.write("drive_c/store/" + std::to_string(i));
  for (int i = 0; i < 200; ++i) host.make_link("drive_c/x/" + std::to_string(i), "../store");
  const auto tree = files.read_tree("C:\\x", "*.*");
  EXPECT_EQ(files_of(tree).size(), 4000U);
  EXPECT_FALSE(tree->left_out_links());
}

}  // namespace quillvane
