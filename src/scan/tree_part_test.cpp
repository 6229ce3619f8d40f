#include "scan/tree_part.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/folder/posix/folder_file_system.h"
#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

// The folders and files below, in order: "name(", its contents, ")".
std::string shown(const ListedFolder& folder) {
  std::string text;
  for (const auto* sub = folder.first_subfolder(); sub != nullptr; sub = sub->next_sibling()) {
    EXPECT_EQ(sub->parent(), &folder);
    text += std::string(sub->name()) + "(" + shown(*sub) + ") ";
  }
  for (std::uint32_t i = 0; i < folder.file_count(); ++i) {
    text += std::string(folder.name_of(i)) + " ";
  }
  return text;
}

struct SmallTree {
  SmallTree() {
    for (const char* file : {"C:\\t\\a.tmp", "C:\\t\\b.log", "C:\\t\\one\\c.log",
                             "C:\\t\\one\\deep\\d.tmp", "C:\\t\\two\\e.log", "C:\\t\\two\\f.log"}) {
      machine.add_file(file, 7);
    }
    machine.add_folder("C:\\t\\empty");
    tree = machine.machine().files().read_tree_for("C:\\t", {"*.tmp", "*.log"});
  }

  TempMachine machine;
  std::shared_ptr<const FolderTree> tree;
};

TEST(TreePart, HoldsTheFilesOfItsPatternAndTheFoldersOnTheWay) {
  const SmallTree small;
  EXPECT_EQ(shown(copy_of({small.tree, &small.tree->root(), 0})->root()),
            "one(deep(d.tmp ) ) a.tmp ");
  EXPECT_EQ(shown(copy_of({small.tree, &small.tree->root(), 1})->root()),
            "one(c.log ) two(e.log f.log ) b.log ");
}

TEST(TreePart, BeginsWithTheFolderItIsAskedFor) {
  const SmallTree small;
  const ListedFolder* empty = small.tree->root().first_subfolder();
  const ListedFolder* one = empty->next_sibling();
  EXPECT_EQ(shown(copy_of({small.tree, one, 1})->root()), "c.log ");
  EXPECT_EQ(copy_of({small.tree, one, 1})->root().name(), "");
  EXPECT_EQ(shown(copy_of({small.tree, empty, 1})->root()), "");
}

TEST(TreePart, KeepsSizesAndTimesWithoutTheTreeItCameFrom) {
  SmallTree small;
  const ListedFile before = small.tree->root().file(1);
  const auto copy = copy_of({small.tree, &small.tree->root(), 1});
  const std::string name(before.name);
  small.tree.reset();

  const ListedFile after = copy->root().file(0);
  EXPECT_EQ(after.name, name);
  EXPECT_EQ(after.size_low, 7U);
  EXPECT_EQ(after.size_high, 0U);
  EXPECT_EQ(after.created.ticks, before.created.ticks);
  EXPECT_EQ(after.accessed.ticks, before.accessed.ticks);
  EXPECT_EQ(after.modified.ticks, before.modified.ticks);
}

}  // namespace
}  // namespace quillvane
