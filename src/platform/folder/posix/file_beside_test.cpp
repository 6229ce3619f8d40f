#include "platform/folder/posix/file_beside.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <set>
#include <string>

#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

class FileBesideTest : public testing::Test {
 protected:
  FileBesideTest() { folder_.write("a", "old"); }

  // Writes "new" into a; the answer is what went wrong.
  std::error_code replace() {
    FileBeside beside(descriptor_.number(), 0666);
    if (beside.problem()) return beside.problem();
    EXPECT_TRUE(write_all(beside.file(), "new"));
    return beside.put_in_place("a");
  }
  [[nodiscard]] std::set<std::string> names() const {
    std::set<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder_.path())) {
      found.insert(entry.path().filename());
    }
    return found;
  }

  using Names = std::set<std::string>;
  TempFolder folder_;
  Descriptor descriptor_{open(folder_.path().c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC)};
};

TEST_F(FileBesideTest, TakesThePlaceOfTheOldFile) {
  EXPECT_EQ(replace(), std::error_code());
  EXPECT_EQ(folder_.read("a"), "new");
  EXPECT_EQ(names(), Names{"a"});
}

TEST_F(FileBesideTest, IsGoneWhenItIsNotPutInPlace) {
  {
    const FileBeside beside(descriptor_.number(), 0600);
    EXPECT_EQ(names(), (Names{".quillvane-1.new", "a"}));
  }
  EXPECT_EQ(names(), Names{"a"});
  EXPECT_EQ(folder_.read("a"), "old");
}

TEST_F(FileBesideTest, AnotherInWorkIsLeftAlone) {
  const FileBeside other(descriptor_.number(), 0600);
  EXPECT_EQ(replace(), std::error_code());
  EXPECT_EQ(names(), (Names{".quillvane-1.new", "a"}));
}

// Nobody holds the file of a program that was killed.
TEST_F(FileBesideTest, ALeftoverIsTakenAway) {
  folder_.write(".quillvane-1.new", "half of");
  EXPECT_EQ(replace(), std::error_code());
  EXPECT_EQ(folder_.read("a"), "new");
  EXPECT_EQ(names(), Names{"a"});
}

// Planted under the name, they would be written into or removed.
TEST_F(FileBesideTest, WhatIsNoLeftoverIsLeftAlone) {
  folder_.write("precious", "precious");
  fs::create_hard_link(folder_.path_of("precious"), folder_.path_of(".quillvane-1.new"));
  folder_.make_link(".quillvane-2.new", "precious");
  ASSERT_EQ(mkfifo(folder_.path_of(".quillvane-3.new").c_str(), 0600), 0);
  folder_.make_folder(".quillvane-4.new");
  folder_.make_link(".quillvane-5.new", "nowhere");
  const Names before = names();

  EXPECT_EQ(replace(), std::error_code());

  EXPECT_EQ(folder_.read("a"), "new");
  EXPECT_EQ(folder_.read("precious"), "precious");
  EXPECT_EQ(names(), before);
}

TEST_F(FileBesideTest, WithEveryNamePlantedNothingIsWritten) {
  folder_.write("precious", "precious");
  for (int number = 1; number <= 64; ++number) {
    fs::create_hard_link(folder_.path_of("precious"),
                         folder_.path_of(".quillvane-" + std::to_string(number) + ".new"));
  }
  EXPECT_EQ(replace(), std::errc::file_exists);
  EXPECT_EQ(folder_.read("a"), "old");
  EXPECT_EQ(folder_.read("precious"), "precious");
}

TEST_F(FileBesideTest, AFolderInThePlaceStaysAndNothingIsLeft) {
  fs::remove(folder_.path_of("a"));
  folder_.make_folder("a");
  EXPECT_EQ(replace(), std::errc::is_a_directory);
  EXPECT_EQ(names(), Names{"a"});
}

}  // namespace
}  // namespace quillvane
