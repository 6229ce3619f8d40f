// Files opened, renamed and copied, and folders made.
#include <string>

#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

class FileMovesContract : public ContractTest {
 protected:
  [[nodiscard]] Names names() const {
    return names_of(platform.files.list_folder(machine->folder(), "*.*"));
  }
  [[nodiscard]] FileContent content(const std::string& name) const {
    return platform.files.read_file(path_of(name));
  }
  bool rename(const std::string& from, const std::string& to) {
    return platform.files.rename_file(path_of(from), path_of(to));
  }
  bool copy(const std::string& from, const std::string& to) {
    return platform.files.copy_file(path_of(from), path_of(to));
  }

  // Paths at which no file can be.
  const std::vector<std::string> nowhere_ = {path_of("missing\\a.txt"), "1:\\a", "",
                                             path_of(std::string(260, 'a'))};
};

TEST_F(FileMovesContract, AFileCanBeOpenedWhateverItsContentAndAttributes) {
  machine->add_file(path_of("a.txt"), "x");
  machine->add_file(path_of("empty.txt"), "");
  machine->add_file(path_of("marked.txt"), "");
  ASSERT_TRUE(platform.files.set_attributes(
      path_of("marked.txt"), kAttributeReadOnly | kAttributeHidden | kAttributeSystem));
  EXPECT_TRUE(platform.files.can_open(path_of("A.txt")));
  EXPECT_TRUE(platform.files.can_open(path_of("empty.txt")));
  EXPECT_TRUE(platform.files.can_open(path_of("marked.txt")));
}

TEST_F(FileMovesContract, AFileInUseThatOthersMayReadCanBeOpened) {
  machine->add_file(path_of("a.txt"), "x");
  machine->hold_open(path_of("a.txt"));
  EXPECT_TRUE(platform.files.can_open(path_of("a.txt")));
}

TEST_F(FileMovesContract, WhatIsNoFileCannotBeOpened) {
  machine->add_folder(path_of("sub"));
  EXPECT_FALSE(platform.files.can_open(path_of("sub")));
  EXPECT_FALSE(platform.files.can_open(path_of("missing.txt")));
  for (const std::string& path : nowhere_) EXPECT_FALSE(platform.files.can_open(path)) << path;
}

TEST_F(FileMovesContract, ARenamedFileKeepsItsContent) {
  machine->add_file(path_of("a.db"), "x");
  EXPECT_TRUE(rename("A.db", "a.tmp"));
  EXPECT_EQ(names(), Names{"a.tmp"});
  EXPECT_EQ(content("a.tmp"), "x");
}

TEST_F(FileMovesContract, AFileCanBeRenamedIntoAnotherFolder) {
  machine->add_file(path_of("a.txt"), "x");
  machine->add_folder(path_of("sub"));
  EXPECT_TRUE(rename("a.txt", "sub\\b.txt"));
  EXPECT_EQ(names(), Names{"sub"});
  EXPECT_EQ(content("sub\\b.txt"), "x");
}

TEST_F(FileMovesContract, AReadOnlyFileCanBeRenamed) {
  machine->add_file(path_of("a.txt"), "x");
  ASSERT_TRUE(platform.files.set_attributes(path_of("a.txt"), kAttributeReadOnly));
  EXPECT_TRUE(rename("a.txt", "b.txt"));
  EXPECT_EQ(names(), Names{"b.txt"});
}

TEST_F(FileMovesContract, ANameThatIsTakenIsNotGivenAgain) {
  machine->add_file(path_of("a.txt"), "a");
  machine->add_file(path_of("b.txt"), "b");
  machine->add_folder(path_of("sub"));
  EXPECT_FALSE(rename("a.txt", "B.TXT"));
  EXPECT_FALSE(rename("a.txt", "sub"));
  EXPECT_EQ(names(), (Names{"a.txt", "b.txt", "sub"}));
  EXPECT_EQ(content("a.txt"), "a");
  EXPECT_EQ(content("b.txt"), "b");
}

TEST_F(FileMovesContract, AFileInUseKeepsItsName) {
  machine->add_file(path_of("a.txt"), "x");
  machine->hold_open(path_of("a.txt"));
  EXPECT_FALSE(rename("a.txt", "b.txt"));
  EXPECT_EQ(names(), Names{"a.txt"});
}

TEST_F(FileMovesContract, OnlyAFileIsRenamedAndOnlyWhereOneCanBe) {
  machine->add_file(path_of("a.txt"), "x");
  machine->add_folder(path_of("sub"));
  EXPECT_FALSE(rename("sub", "other"));
  EXPECT_FALSE(rename("missing.txt", "b.txt"));
  for (const std::string& path : nowhere_) {
    EXPECT_FALSE(platform.files.rename_file(path, path_of("b.txt"))) << path;
    EXPECT_FALSE(platform.files.rename_file(path_of("a.txt"), path)) << path;
  }
  EXPECT_EQ(names(), (Names{"a.txt", "sub"}));
}

TEST_F(FileMovesContract, ACopyHasTheContentAndTheFileStays) {
  std::string large;
  for (int i = 0; large.size() < 300'000; ++i) large += std::to_string(i);
  machine->add_file(path_of("a.bin"), large);
  machine->add_folder(path_of("sub"));
  EXPECT_TRUE(copy("a.bin", "sub\\b.bin"));
  EXPECT_TRUE(content("sub\\b.bin") == large);
  EXPECT_TRUE(content("a.bin") == large);
}

TEST_F(FileMovesContract, ACopyHasTheAttributesAndTheTimeOfTheLastWriting) {
  machine->add_file(path_of("a.txt"), "x");
  ASSERT_TRUE(
      platform.files.set_attributes(path_of("a.txt"), kAttributeReadOnly | kAttributeHidden));
  EXPECT_TRUE(copy("a.txt", "b.txt"));
  const auto entries = platform.files.list_folder(machine->folder(), "*.*");
  ASSERT_EQ(entries.size(), 2U);
  constexpr std::uint32_t kCompared = kAttributeReadOnly | kAttributeHidden;
  EXPECT_EQ(entries[1].attributes & kCompared, kCompared);
  EXPECT_EQ(entries[1].modified, entries[0].modified);
}

TEST_F(FileMovesContract, ACopyReplacesTheFileOfThatName) {
  machine->add_file(path_of("a.txt"), "new");
  machine->add_file(path_of("B.txt"), "a long old content");
  EXPECT_TRUE(copy("a.txt", "b.TXT"));
  EXPECT_EQ(content("b.txt"), "new");
  EXPECT_EQ(names().size(), 2U);
}

TEST_F(FileMovesContract, AFileInUseThatOthersMayReadCanBeCopied) {
  machine->add_file(path_of("a.txt"), "x");
  machine->hold_open(path_of("a.txt"));
  EXPECT_TRUE(copy("a.txt", "b.txt"));
  EXPECT_EQ(content("b.txt"), "x");
}

TEST_F(FileMovesContract, ACopyDoesNotReplaceWhatMayNotBeWritten) {
  machine->add_file(path_of("a.txt"), "new");
  machine->add_file(path_of("used.txt"), "old");
  machine->add_file(path_of("read.txt"), "old");
  machine->hold_open(path_of("used.txt"));
  ASSERT_TRUE(platform.files.set_attributes(path_of("read.txt"), kAttributeReadOnly));
  EXPECT_FALSE(copy("a.txt", "used.txt"));
  EXPECT_FALSE(copy("a.txt", "read.txt"));
  EXPECT_EQ(content("used.txt"), "old");
  EXPECT_EQ(content("read.txt"), "old");
}

TEST_F(FileMovesContract, OnlyAFileIsCopiedAndOnlyWhereOneCanBe) {
  machine->add_file(path_of("a.txt"), "x");
  machine->add_folder(path_of("sub"));
  EXPECT_FALSE(copy("sub", "other"));
  EXPECT_FALSE(copy("a.txt", "sub"));
  EXPECT_FALSE(copy("missing.txt", "b.txt"));
  for (const std::string& path : nowhere_) {
    EXPECT_FALSE(platform.files.copy_file(path, path_of("b.txt"))) << path;
    EXPECT_FALSE(platform.files.copy_file(path_of("a.txt"), path)) << path;
  }
  EXPECT_EQ(names(), (Names{"a.txt", "sub"}));
}

TEST_F(FileMovesContract, AFolderIsMadeOnceAndWithoutThoseAboveIt) {
  EXPECT_TRUE(platform.files.make_folder(path_of("sub")));
  EXPECT_EQ(platform.files.attributes(path_of("sub")).value_or(0) & kAttributeFolder,
            kAttributeFolder);
  EXPECT_FALSE(platform.files.make_folder(path_of("SUB")));
  EXPECT_FALSE(platform.files.make_folder(path_of("other\\deep")));
  EXPECT_TRUE(platform.files.make_folder(path_of("sub\\deep")));
  EXPECT_EQ(names(), Names{"sub"});
}

TEST_F(FileMovesContract, NoFolderIsMadeWhereAFileIsOrNoneCanBe) {
  machine->add_file(path_of("a.txt"), "x");
  EXPECT_FALSE(platform.files.make_folder(path_of("a.txt")));
  for (const std::string& path : nowhere_) EXPECT_FALSE(platform.files.make_folder(path)) << path;
  EXPECT_EQ(content("a.txt"), "x");
  EXPECT_EQ(names(), Names{"a.txt"});
}

}  // namespace
}  // namespace quillvane
