#include "platform/folder/posix/open_folders.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace quillvane {

namespace {

class OpenFoldersTest : public ::testing::Test {
 protected:
  // A folder with subfolders of these names, as it is when it has been read.
  FolderInWork folder(std::initializer_list<const char*> subfolders) {
    ListedFolder* made = ListedFolder::make(arena, "", nullptr);
    ListedFolder* last = nullptr;
    for (const char* name : subfolders) {
      ListedFolder* next = ListedFolder::make(arena, name, made);
      last == nullptr ? made->set_first_subfolder(next) : last->set_next_sibling(next);
      last = next;
    }
    return {made, Descriptor(), nullptr, 0};
  }
  static FolderInWork enter(const FolderInWork& parent, ListedFolder& subfolder) {
    EXPECT_EQ(subfolder.parent(), parent.folder);
    return {&subfolder, Descriptor(), nullptr, 0};
  }
  std::string newest() {
    const auto taken = open.take_newest(enter);
    return taken ? std::string(taken->folder->name()) : "(none)";
  }
  std::string oldest() {
    const auto taken = open.take_oldest(enter);
    return taken ? std::string(taken->folder->name()) : "(none)";
  }

  TreeArena arena;
  OpenFolders open;
};

}  // namespace

TEST_F(OpenFoldersTest, GiveNothingAtFirst) {
  EXPECT_EQ(newest(), "(none)");
  EXPECT_EQ(oldest(), "(none)");
}

TEST_F(OpenFoldersTest, GiveEachSubfolderOnce) {
  open.add(folder({"a", "b"}));
  open.add(folder({"c", "d"}));
  EXPECT_EQ(newest(), "c");
  EXPECT_EQ(oldest(), "a");
  EXPECT_EQ(newest(), "d");
  EXPECT_EQ(newest(), "b");
  EXPECT_EQ(newest(), "(none)");
  EXPECT_EQ(oldest(), "(none)");
}

TEST_F(OpenFoldersTest, GiveOthersTheNextOldestWhenTheOldestIsDone) {
  open.add(folder({"a"}));
  open.add(folder({"b", "c"}));
  EXPECT_EQ(oldest(), "a");
  EXPECT_EQ(oldest(), "b");
  open.add(folder({"d"}));
  EXPECT_EQ(oldest(), "c");
  EXPECT_EQ(newest(), "d");
  EXPECT_EQ(newest(), "(none)");
}

}  // namespace quillvane
