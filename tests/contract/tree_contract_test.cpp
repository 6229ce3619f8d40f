// Walks of a folder and everything below it.
#include <algorithm>
#include <functional>
#include <string>

#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

class TreeContract : public ContractTest {
 protected:
  // Every file of the walk by its path below the test's folder, subfolders before the folder's own
  // files, as the walker goes.
  Names walk(const std::string& folder, const std::string& pattern) {
    const auto tree = platform.files.read_tree(folder, pattern);
    Names files;
    if (tree == nullptr) return {"(cannot be listed)"};
    add_files(tree->root(), "", files);
    return files;
  }
  Names walk(const std::string& pattern) { return walk(machine->folder(), pattern); }

  // Every folder of the walk likewise, each before its subfolders.
  Names folders() {
    const auto tree = platform.files.read_tree(machine->folder(), "*.*");
    Names names;
    if (tree != nullptr) add_folders(tree->root(), "", names);
    return names;
  }

  void stage(const Names& folders, const Names& files) {
    for (const std::string& folder : folders) machine->add_folder(path_of(folder));
    for (const std::string& file : files) machine->add_file(path_of(file), "");
  }

 private:
  static void add_files(const ListedFolder& folder, const std::string& path, Names& files) {
    for (const auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
      EXPECT_EQ(sub->parent(), &folder) << sub->name();
      add_files(*sub, path + std::string(sub->name()) + "\\", files);
    }
    for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
      files.push_back(path + std::string(folder.file(i).name));
    }
  }
  static void add_folders(const ListedFolder& folder, const std::string& path, Names& names) {
    for (const auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
      names.push_back(path + std::string(sub->name()));
      add_folders(*sub, names.back() + "\\", names);
    }
  }
};

TEST_F(TreeContract, AWalkFindsTheFilesOfEverySubfolder) {
  stage({"b", "a", "a\\deep"}, {"z.txt", "b\\1.txt", "a\\2.txt", "a\\1.txt", "a\\deep\\3.txt"});
  EXPECT_EQ(walk("*.*"), (Names{"a\\deep\\3.txt", "a\\1.txt", "a\\2.txt", "b\\1.txt", "z.txt"}));
}

TEST_F(TreeContract, ThePatternPicksFilesAndNotFolders) {
  stage({"a", "b.log"}, {"a\\1.log", "a\\1.txt", "b.log\\2.log", "3.txt"});
  EXPECT_EQ(walk("*.log"), (Names{"a\\1.log", "b.log\\2.log"}));
}

TEST_F(TreeContract, HistoryWithoutExtensionIsFoundInEveryFolder) {
  stage({"Profile"}, {"History", "Profile\\History", "Profile\\History.bak", "Profile\\Histories"});
  EXPECT_EQ(walk("History.*"), (Names{"Profile\\History", "Profile\\History.bak", "History"}));
}

TEST_F(TreeContract, ShortNamesAreMatchedInSubfoldersToo) {
  stage({"a"}, {"a\\report.tmpx", "a\\report.txt"});
  EXPECT_EQ(walk("*.tmp"), Names{"a\\report.tmpx"});
}

TEST_F(TreeContract, AnEmptyFolderIsATreeWithNothingInIt) {
  const auto tree = platform.files.read_tree(machine->folder(), "*.*");
  ASSERT_NE(tree, nullptr);
  EXPECT_EQ(tree->root().name(), "");
  EXPECT_EQ(tree->root().file_count(), 0U);
  EXPECT_EQ(tree->root().first_subfolder(), nullptr);
}

TEST_F(TreeContract, EmptySubfoldersAreInTheTree) {
  stage({"a", "a\\b", "c"}, {});
  EXPECT_EQ(folders(), (Names{"a", "a\\b", "c"}));
}

TEST_F(TreeContract, WhatIsNoFolderIsNoTree) {
  machine->add_file(path_of("a.txt"), "");
  for (const std::string& folder : {path_of("missing"), path_of("a.txt"), std::string("1:\\"),
                                    std::string(), std::string("\\"), std::string("\\Temp")}) {
    EXPECT_EQ(platform.files.read_tree(folder, "*.*"), nullptr) << folder;
  }
}

TEST_F(TreeContract, AFileCarriesItsSizeInTwoWords) {
  constexpr std::uint64_t kBytes = (5ULL << 32U) + 7;
  machine->add_big_file(path_of("big.dmp"), kBytes);
  const auto tree = platform.files.read_tree(machine->folder(), "*.dmp");
  ASSERT_NE(tree, nullptr);
  ASSERT_EQ(tree->root().file_count(), 1U);
  EXPECT_EQ(tree->root().file(0).size_high, 5U);
  EXPECT_EQ(tree->root().file(0).size_low, 7U);
}

TEST_F(TreeContract, AWalkTellsTheSameTimesAsAListing) {
  machine->add_file(path_of("a.txt"), "");
  const auto tree = platform.files.read_tree(machine->folder(), "*.*");
  const auto listed = platform.files.list_folder(machine->folder(), "*.*");
  ASSERT_NE(tree, nullptr);
  ASSERT_EQ(tree->root().file_count(), 1U);
  ASSERT_EQ(listed.size(), 1U);
  EXPECT_EQ(tree->root().file(0).created, listed[0].created);
  EXPECT_EQ(tree->root().file(0).modified, listed[0].modified);
}

TEST_F(TreeContract, ATreeKeepsItsNamesAfterTheFilesAreGone) {
  stage({}, {"a.txt", "b.txt"});
  const auto tree = platform.files.read_tree(machine->folder(), "*.*");
  EXPECT_EQ(platform.files.remove_file(path_of("a.txt")), RemoveResult::kRemoved);
  ASSERT_NE(tree, nullptr);
  ASSERT_EQ(tree->root().file_count(), 2U);
  EXPECT_EQ(tree->root().name_of(0), "a.txt");
  EXPECT_EQ(tree->root().name_of(1), "b.txt");
}

TEST_F(TreeContract, OneReadingServesSeveralPatterns) {
  stage({"a"}, {"a\\1.log", "a\\report.tmpx", "2.txt", "3.log", "History"});
  const auto tree =
      platform.files.read_tree_for(machine->folder(), {"*.log", "*.tmp", "History.*", "3.*"});
  ASSERT_NE(tree, nullptr);
  const ListedFolder& root = tree->root();
  ASSERT_EQ(root.file_count(), 2U);  // 2.txt matches none of them
  EXPECT_EQ(root.name_of(0), "3.log");
  EXPECT_TRUE(root.matches(0, 0) && !root.matches(0, 1) && !root.matches(0, 2) &&
              root.matches(0, 3));
  EXPECT_EQ(root.name_of(1), "History");
  EXPECT_TRUE(!root.matches(1, 0) && !root.matches(1, 1) && root.matches(1, 2) &&
              !root.matches(1, 3));
  const ListedFolder* sub = root.first_subfolder();
  ASSERT_NE(sub, nullptr);
  ASSERT_EQ(sub->file_count(), 2U);
  EXPECT_EQ(sub->name_of(0), "1.log");
  EXPECT_TRUE(sub->matches(0, 0) && !sub->matches(0, 1));
  EXPECT_EQ(sub->name_of(1), "report.tmpx");
  EXPECT_TRUE(!sub->matches(1, 0) && sub->matches(1, 1));
}

TEST_F(TreeContract, ATreeTellsWhetherALoopWasLeftOut) {
  stage({"a"}, {});
  EXPECT_FALSE(platform.files.read_tree(machine->folder(), "*.*")->left_out_loops());
  machine->add_link(path_of("a\\up"), path_of("a"));
  EXPECT_TRUE(platform.files.read_tree(machine->folder(), "*.*")->left_out_loops());
}

TEST_F(TreeContract, WhereLinksMultiplyEveryFolderIsReadAndSomeLinksArePassedOver) {
  // Two links in each folder to the next one, 65,536 ways to the last.
  for (int i = 0; i <= 16; ++i) {
    machine->add_folder(path_of("f" + std::to_string(i)));
    machine->add_file(path_of("f" + std::to_string(i) + "\\" + std::to_string(i) + ".tmp"), "");
    if (i == 0) continue;
    for (const char* link : {"\\a", "\\b"}) {
      machine->add_link(path_of("f" + std::to_string(i - 1) + link),
                        path_of("f" + std::to_string(i)));
    }
  }
  const auto tree = platform.files.read_tree(path_of("f0"), "*.*");
  ASSERT_NE(tree, nullptr);
  EXPECT_TRUE(tree->left_out_links());
  const Names found = walk(path_of("f0"), "*.*");
  // At most 20,000 entries are read again, a file and two links in each folder.
  EXPECT_LT(found.size(), 10'000U);
  for (int i = 0; i <= 16; ++i) {
    const std::string name = std::to_string(i) + ".tmp";
    EXPECT_TRUE(std::any_of(found.begin(), found.end(), [&](const std::string& path) {
      return path == name || path.ends_with("\\" + name);
    })) << name;
  }
}

TEST_F(TreeContract, ALinkIsEnteredLikeAFolder) {
  stage({"real", "walked"}, {"real\\1.txt"});
  machine->add_link(path_of("walked\\link"), path_of("real"));
  EXPECT_EQ(walk(path_of("walked"), "*.*"), Names{"link\\1.txt"});
}

TEST_F(TreeContract, ALinkToAFolderItLiesInIsNotEnteredAgain) {
  stage({"a", "a\\b"}, {"a\\1.txt", "a\\b\\2.txt"});
  machine->add_link(path_of("a\\b\\up"), path_of("a"));
  EXPECT_EQ(walk("*.*"), (Names{"a\\b\\2.txt", "a\\1.txt"}));
}

TEST_F(TreeContract, TwoLinksToTheirOwnFolderDoNotMultiply) {
  stage({"a"}, {"a\\1.txt"});
  machine->add_link(path_of("a\\x"), path_of("a"));
  machine->add_link(path_of("a\\y"), path_of("a"));
  EXPECT_EQ(walk("*.*"), Names{"a\\1.txt"});
}

TEST_F(TreeContract, TwoFoldersLinkedToEachOtherEnd) {
  stage({"a", "b"}, {"a\\1.txt", "b\\2.txt"});
  machine->add_link(path_of("a\\to_b"), path_of("b"));
  machine->add_link(path_of("b\\to_a"), path_of("a"));
  // Each is found once by itself and once through the other.
  EXPECT_EQ(walk("*.*"), (Names{"a\\to_b\\2.txt", "a\\1.txt", "b\\to_a\\1.txt", "b\\2.txt"}));
}

TEST_F(TreeContract, AFolderWhosePathIsTooLongWithThePatternGivesNoFiles) {
  // Folder, backslash and pattern stay below 260: with "*.*" this folder makes 259.
  const std::string upper = std::string(100, 'u');
  const std::size_t room = 259 - 4 - path_of(upper).size() - 1;
  const std::string lower = upper + "\\" + std::string(room, 'l');
  ASSERT_EQ(path_of(lower).size() + 4, 259U);
  stage({upper, lower, lower + "\\below"}, {upper + "\\1.log", lower + "\\2.log"});
  EXPECT_EQ(walk("*.*"), (Names{lower + "\\2.log", upper + "\\1.log"}));
  EXPECT_EQ(walk("*.log"), Names{upper + "\\1.log"});
  // Folders are found by "*.*" whatever the pattern; what is too long is there, but not read.
  EXPECT_EQ(folders(), (Names{upper, lower, lower + "\\below"}));
}

}  // namespace
}  // namespace quillvane
