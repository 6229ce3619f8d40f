// Windows drops blanks and dots at the end of a name. A path that ends so would mean another file
// than it says, and that one must come to no harm.
#include <gtest/gtest.h>

#include <string>

#include "platform/win32/win32_file_system.h"
#include "tests/windows/scratch_folder.h"

namespace quillvane {
namespace {

TEST(InexactNames, TheFileWithoutTheEndingStaysAsItIs) {
  const ScratchFolder folder;
  const std::string path = folder.add_file("a.txt", "a");
  const std::string other = folder.add_file("b.txt", "b");
  Win32FileSystem files;
  for (const char* ending : {".", " ", "..", ". "}) {
    EXPECT_EQ(files.remove_file(path + ending), RemoveResult::kUnreadable) << ending;
    EXPECT_FALSE(files.rename_file(path + ending, folder.path_of("c.txt"))) << ending;
    EXPECT_FALSE(files.rename_file(path, folder.path_of("c.txt") + ending)) << ending;
    EXPECT_FALSE(files.copy_file(path + ending, folder.path_of("c.txt"))) << ending;
    EXPECT_FALSE(files.copy_file(other, path + ending)) << ending;
    EXPECT_FALSE(files.make_folder(folder.path_of("sub") + ending)) << ending;
  }
  EXPECT_EQ(folder.names(), "a.txt b.txt");
  EXPECT_EQ(files.read_file(path), "a");
}

}  // namespace
}  // namespace quillvane
