// Walks for several patterns in one reading.
#include <memory>
#include <string>

#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

using Tree = std::shared_ptr<const FolderTree>;

class TreePatternsContract : public ContractTest {
 protected:
  Tree read(const Names& patterns) const {
    return platform.files.read_tree_for(machine->folder(), patterns);
  }
  // The files of one pattern by their path below the test's folder.
  static Names files(const Tree& tree, unsigned pattern) {
    Names found;
    if (tree == nullptr) return {"(cannot be listed)"};
    add_files(tree->root(), "", pattern, found);
    return found;
  }
  // Those of the walk for that pattern alone.
  Names alone(const std::string& pattern) const {
    return files(platform.files.read_tree(machine->folder(), pattern), 0);
  }
  void stage(const Names& folders, const Names& names) {
    for (const std::string& folder : folders) machine->add_folder(path_of(folder));
    for (const std::string& name : names) machine->add_file(path_of(name), "");
  }

 private:
  static void add_files(const ListedFolder& folder, const std::string& path, unsigned pattern,
                        Names& found) {
    for (const auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
      add_files(*sub, path + std::string(sub->name()) + "\\", pattern, found);
    }
    for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
      if (folder.matches(i, pattern)) found.push_back(path + std::string(folder.name_of(i)));
    }
  }
};

TEST_F(TreePatternsContract, EachPatternHasItsOwnFiles) {
  stage({"a", "b"},
        {"1.log", "1.tmp", "History", "a\\2.log", "a\\History.bak", "a\\report.tmpx", "b\\3.txt"});
  const Tree tree = read({"*.log", "History.*", "*.tmp"});
  EXPECT_EQ(files(tree, 0), (Names{"a\\2.log", "1.log"}));
  EXPECT_EQ(files(tree, 1), (Names{"a\\History.bak", "History"}));
  // The long ending has the short name REPORT~1.TMP.
  EXPECT_EQ(files(tree, 2), (Names{"a\\report.tmpx", "1.tmp"}));
}

TEST_F(TreePatternsContract, AFileIsThereOnceForAllPatternsItMatches) {
  stage({}, {"a.log", "b.txt"});
  const Tree tree = read({"a.*", "*.log", "*.tmp"});
  ASSERT_NE(tree, nullptr);
  ASSERT_EQ(tree->root().file_count(), 1U);
  EXPECT_EQ(tree->root().name_of(0), "a.log");
  EXPECT_TRUE(tree->root().matches(0, 0));
  EXPECT_TRUE(tree->root().matches(0, 1));
  EXPECT_FALSE(tree->root().matches(0, 2));
}

TEST_F(TreePatternsContract, EachPatternFindsWhatItsOwnWalkFinds) {
  stage({"Profile", "Profile\\deep"},
        {"a.log", "ab.log", "abc.log", "none", "Profile\\History", "Profile\\Histories",
         "Profile\\deep\\a.LOG", "Profile\\deep\\\xC3\x84rger.log"});
  const Names patterns = {"*.*", "a?.log", "*.", "history*", "*\xC3\xA4rger*", "*.none"};
  const Tree tree = read(patterns);
  for (unsigned i = 0; i < patterns.size(); ++i) {
    EXPECT_EQ(files(tree, i), alone(patterns[i])) << patterns[i];
  }
}

TEST_F(TreePatternsContract, FoldersAreThereWhateverThePatterns) {
  stage({"a", "a\\b"}, {"a\\b\\1.txt"});
  const Tree tree = read({"*.log", "*.tmp"});
  ASSERT_NE(tree, nullptr);
  ASSERT_NE(tree->root().first_subfolder(), nullptr);
  EXPECT_EQ(tree->root().first_subfolder()->name(), "a");
  ASSERT_NE(tree->root().first_subfolder()->first_subfolder(), nullptr);
  EXPECT_EQ(tree->root().first_subfolder()->first_subfolder()->name(), "b");
}

TEST_F(TreePatternsContract, AsManyPatternsAsThereAreBitsAndNoMore) {
  stage({}, {"1.txt", "31.txt", "32.txt"});
  Names patterns;
  for (int i = 0; i < 32; ++i) patterns.push_back(std::to_string(i) + ".*");
  const Tree tree = read(patterns);
  EXPECT_EQ(files(tree, 1), Names{"1.txt"});
  EXPECT_EQ(files(tree, 31), Names{"31.txt"});
  EXPECT_EQ(files(tree, 30), Names{});
  patterns.emplace_back("32.*");
  EXPECT_EQ(read(patterns), nullptr);
}

TEST_F(TreePatternsContract, TheFirstMatchIsToldOfAnyNumberOfPatterns) {
  stage({}, {"39.txt", "7.log", "7.txt", "x.doc"});
  TreeRequest request({"*.log"});
  for (int i = 1; i < 40; ++i) request.patterns.push_back(std::to_string(i) + ".*");
  request.tells = TreeRequest::Tells::kFirstMatch;
  const Tree tree = platform.files.read_tree_for(machine->folder(), request);
  ASSERT_NE(tree, nullptr);
  ASSERT_EQ(tree->root().file_count(), 3U);
  EXPECT_EQ(tree->root().name_of(0), "39.txt");
  EXPECT_EQ(tree->root().first_match(0), 39U);
  EXPECT_EQ(tree->root().name_of(1), "7.log");
  EXPECT_EQ(tree->root().first_match(1), 0U);
  EXPECT_EQ(tree->root().first_match(2), 7U);
}

TEST_F(TreePatternsContract, AFolderCanBeReadAlone) {
  stage({"a"}, {"1.txt", "a\\2.txt"});
  TreeRequest request({"*.txt"});
  request.subfolders = false;
  const Tree tree = platform.files.read_tree_for(machine->folder(), request);
  EXPECT_EQ(files(tree, 0), Names{"1.txt"});
  EXPECT_EQ(tree->root().first_subfolder(), nullptr);
}

TEST_F(TreePatternsContract, AFolderTellsHowManyEntriesItHolds) {
  stage({"a", "b"}, {"1.txt", "2.log", "a\\3.doc"});
  const Tree tree = read({"*.txt"});
  ASSERT_NE(tree, nullptr);
  const ListedFolder& root = tree->root();
  EXPECT_TRUE(root.was_read());
  EXPECT_EQ(root.entry_count(), 4U);
  EXPECT_EQ(root.first_subfolder()->entry_count(), 1U);
  EXPECT_EQ(root.first_subfolder()->next_sibling()->entry_count(), 0U);
  EXPECT_TRUE(root.first_subfolder()->next_sibling()->was_read());
}

TEST_F(TreePatternsContract, APathCanBeTooLongForOnePatternAndNotForAnother) {
  // Folder, backslash and pattern stay below 260: with "*.*" this folder makes 259.
  const std::string upper = std::string(100, 'u');
  const std::string lower = upper + "\\" + std::string(259 - 4 - path_of(upper).size() - 1, 'l');
  stage({upper, lower}, {upper + "\\1.log", lower + "\\2.log"});
  const Tree tree = read({"*.log", "*.*"});
  EXPECT_EQ(files(tree, 0), Names{upper + "\\1.log"});
  EXPECT_EQ(files(tree, 1), (Names{lower + "\\2.log", upper + "\\1.log"}));
}

TEST_F(TreePatternsContract, ALinkThatLeadsBackIsToldOthersAreNot) {
  stage({"a", "b"}, {"b\\1.txt"});
  machine->add_link(path_of("a\\link"), path_of("b"));
  Tree tree = read({"*.txt", "*.log"});
  ASSERT_NE(tree, nullptr);
  EXPECT_FALSE(tree->left_out_loops());
  machine->add_link(path_of("b\\up"), path_of("b"));
  tree = read({"*.txt", "*.log"});
  ASSERT_NE(tree, nullptr);
  EXPECT_TRUE(tree->left_out_loops());
  EXPECT_EQ(files(tree, 0), (Names{"a\\link\\1.txt", "b\\1.txt"}));
}

TEST_F(TreePatternsContract, WhatIsNoFolderIsNoTree) {
  machine->add_file(path_of("a.txt"), "");
  for (const std::string& folder : {path_of("missing"), path_of("a.txt"), std::string("1:\\"),
                                    std::string(), std::string("\\Temp")}) {
    EXPECT_EQ(platform.files.read_tree_for(folder, {"*.log", "*.tmp"}), nullptr) << folder;
  }
}

}  // namespace
}  // namespace quillvane
