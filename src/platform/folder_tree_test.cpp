#include "platform/folder_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace quillvane {

namespace {

constexpr FileTime kCreated{132'223'104'000'000'001};
constexpr FileTime kAccessed{-5};  // before 1601
constexpr FileTime kModified{126'444'736'000'000'000};

// Gives the folder files of these names; each file's size is its number in the upper word and 7 in
// the lower.
void add_files(TreeArena& arena, ListedFolder& folder, const std::vector<std::string>& names) {
  using SplitTime = ListedFolder::SplitTime;
  std::string text;
  for (const std::string& name : names) text += name;
  const auto count = static_cast<std::uint32_t>(names.size());
  auto* records = folder.allocate_files(arena, count, text.size());
  std::size_t name_end = 0;
  for (std::uint32_t i = 0; i < count; ++i) {
    name_end += names[i].size();
    records[i] = {7,
                  i,
                  SplitTime::of(kCreated),
                  SplitTime::of(kAccessed),
                  SplitTime::of(kModified),
                  static_cast<std::uint32_t>(name_end)};
  }
  std::copy(text.begin(), text.end(), reinterpret_cast<char*>(records + count));
}

}  // namespace

TEST(FolderTree, GivesBackWhatWasPutIn) {
  FolderTree tree;
  TreeArena& arena = tree.add_arena();
  ListedFolder* root = ListedFolder::make(arena, "", nullptr);
  tree.set_root(root);
  add_files(arena, *root, {"a", "", "long name.txt"});
  ASSERT_EQ(tree.root().file_count(), 3U);
  EXPECT_EQ(tree.root().name_of(0), "a");
  EXPECT_EQ(tree.root().name_of(1), "");
  const ListedFile file = tree.root().file(2);
  EXPECT_EQ(file.name, "long name.txt");
  EXPECT_EQ(file.size_low, 7U);
  EXPECT_EQ(file.size_high, 2U);
  EXPECT_EQ(file.created, kCreated);
  EXPECT_EQ(file.accessed, kAccessed);
  EXPECT_EQ(file.modified, kModified);
}

TEST(FolderTree, LinksFoldersBothWays) {
  TreeArena arena;
  ListedFolder* root = ListedFolder::make(arena, "", nullptr);
  ListedFolder* first = ListedFolder::make(arena, "first", root);
  ListedFolder* second = ListedFolder::make(arena, "second", root);
  root->set_first_subfolder(first);
  first->set_next_sibling(second);
  const ListedFolder& read = *root;
  EXPECT_EQ(read.name(), "");
  EXPECT_EQ(read.parent(), nullptr);
  EXPECT_EQ(read.first_subfolder()->name(), "first");
  EXPECT_EQ(read.first_subfolder()->parent(), root);
  EXPECT_EQ(read.first_subfolder()->next_sibling()->name(), "second");
  EXPECT_EQ(second->next_sibling(), nullptr);
  EXPECT_EQ(first->file_count(), 0U);
}

TEST(FolderTree, MatchesEveryPatternWithoutAWordOfWhich) {
  TreeArena arena;
  ListedFolder* folder = ListedFolder::make(arena, "", nullptr);
  add_files(arena, *folder, {"a", "b"});
  EXPECT_TRUE(folder->matches(1, 0));
  std::uint32_t* matches = folder->allocate_matches(arena);
  matches[0] = 0b01;
  matches[1] = 0b10;
  EXPECT_TRUE(folder->matches(0, 0));
  EXPECT_FALSE(folder->matches(0, 1));
  EXPECT_FALSE(folder->matches(1, 0));
  EXPECT_TRUE(folder->matches(1, 1));
}

TEST(TreeArena, GivesPlacesThatDoNotOverlap) {
  TreeArena arena;
  std::vector<std::string_view> places;
  for (std::size_t i = 0; i < 2000; ++i) {
    // Some larger than what is taken from the system at once.
    const std::size_t bytes = i % 500 == 499 ? 400'000 : 1 + i % 1000;
    char* place = arena.allocate(bytes);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(place) % 8, 0U);
    std::fill_n(place, bytes, static_cast<char>(i % 100));
    places.emplace_back(place, bytes);
  }
  for (std::size_t i = 0; i < places.size(); ++i) {
    const char expected = static_cast<char>(i % 100);
    ASSERT_EQ(places[i].find_first_not_of(expected), std::string_view::npos) << i;
  }
}

}  // namespace quillvane
