// Single files: attributes, sizes, contents, removal.
#include <string>

#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

class FileContract : public ContractTest {
 protected:
  static constexpr std::uint32_t kShown =
      kAttributeReadOnly | kAttributeHidden | kAttributeSystem | kAttributeArchive;

  // The attributes that can be set, as the machine tells them now.
  std::uint32_t shown_attributes(const std::string& path) {
    return platform.files.attributes(path).value_or(0xFFFFFFFF) & kShown;
  }
};

TEST_F(FileContract, AttributesTellFilesFromFolders) {
  machine->add_file(path_of("a.txt"), "");
  machine->add_folder(path_of("sub"));
  ASSERT_TRUE(platform.files.attributes(path_of("a.txt")).has_value());
  EXPECT_EQ(*platform.files.attributes(path_of("a.txt")) & kAttributeFolder, 0U);
  ASSERT_TRUE(platform.files.attributes(path_of("sub")).has_value());
  EXPECT_EQ(*platform.files.attributes(path_of("sub")) & kAttributeFolder, kAttributeFolder);
}

TEST_F(FileContract, ANewFileIsArchive) {
  machine->add_file(path_of("a.txt"), "");
  EXPECT_EQ(shown_attributes(path_of("a.txt")), kAttributeArchive);
}

TEST_F(FileContract, AttributesAreReplacedByThoseThatAreSet) {
  const std::string path = path_of("a.txt");
  machine->add_file(path, "");
  for (const std::uint32_t bits :
       {kAttributeReadOnly, kAttributeHidden | kAttributeSystem,
        kAttributeReadOnly | kAttributeArchive, kAttributeHidden, kShown}) {
    EXPECT_TRUE(platform.files.set_attributes(path, bits)) << bits;
    EXPECT_EQ(shown_attributes(path), bits | machine->constant_attributes());
  }
  EXPECT_TRUE(platform.files.set_attributes(path, kAttributeNormal));
  EXPECT_EQ(shown_attributes(path), machine->constant_attributes());
}

TEST_F(FileContract, AttributesOfAFolderCanBeSetAndItStaysAFolder) {
  const std::string path = path_of("sub");
  machine->add_folder(path);
  EXPECT_TRUE(platform.files.set_attributes(path, kAttributeHidden));
  EXPECT_EQ(*platform.files.attributes(path) & (kAttributeHidden | kAttributeFolder),
            kAttributeHidden | kAttributeFolder);
}

TEST_F(FileContract, AListingShowsTheAttributes) {
  machine->add_file(path_of("a.txt"), "");
  ASSERT_TRUE(
      platform.files.set_attributes(path_of("a.txt"), kAttributeHidden | kAttributeReadOnly));
  const auto entries = platform.files.list_folder(machine->folder(), "*.*");
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].attributes & kShown,
            kAttributeHidden | kAttributeReadOnly | machine->constant_attributes());
}

TEST_F(FileContract, WhatIsMissingHasNothing) {
  for (const std::string& path :
       {path_of("missing"), path_of("missing\\deeper"), std::string("1:\\a"), std::string()}) {
    EXPECT_FALSE(platform.files.attributes(path).has_value()) << path;
    EXPECT_FALSE(platform.files.set_attributes(path, kAttributeHidden)) << path;
    EXPECT_FALSE(platform.files.file_size(path).has_value()) << path;
    EXPECT_FALSE(platform.files.read_file(path)) << path;
    EXPECT_EQ(platform.files.remove_file(path), RemoveResult::kMissing) << path;
  }
}

TEST_F(FileContract, APathThatIsTooLongIsNotLookedAt) {
  const std::string path = path_of(std::string(260 - path_of("").size(), 'a'));
  EXPECT_FALSE(platform.files.attributes(path).has_value());
  EXPECT_FALSE(platform.files.set_attributes(path, kAttributeHidden));
  EXPECT_FALSE(platform.files.file_size(path).has_value());
  EXPECT_FALSE(platform.files.read_file(path));
  EXPECT_EQ(platform.files.remove_file(path), RemoveResult::kTooLong);
  EXPECT_EQ(platform.files.remove_file(path.substr(0, 259)), RemoveResult::kMissing);
}

TEST_F(FileContract, AFolderHasNoSizeAndNoContent) {
  machine->add_folder(path_of("sub"));
  EXPECT_FALSE(platform.files.file_size(path_of("sub")).has_value());
  EXPECT_EQ(platform.files.read_file(path_of("sub")), ReadFailure::kFolder);
  EXPECT_FALSE(platform.files.write_file(path_of("sub"), "x"));
  EXPECT_NE(platform.files.remove_file(path_of("sub")), RemoveResult::kRemoved);
  EXPECT_TRUE(platform.files.attributes(path_of("sub")).has_value());
}

TEST_F(FileContract, WhatCannotBeReadIsToldFromWhatIsMissing) {
  machine->add_file(path_of("a.txt"), "x");
  machine->add_folder(path_of("sub"));
  const struct {
    std::string path;
    ReadFailure why;
  } cases[] = {
      {path_of("missing"), ReadFailure::kMissing},
      {path_of("missing\\deeper"), ReadFailure::kMissing},
      {path_of("a.txt\\deeper"), ReadFailure::kMissing},
      {"1:\\a", ReadFailure::kMissing},
      {"", ReadFailure::kMissing},
      {path_of("SUB"), ReadFailure::kFolder},
      {path_of(std::string(260, 'a')), ReadFailure::kTooLong},
  };
  for (const auto& c : cases) EXPECT_EQ(platform.files.read_file(c.path), c.why) << c.path;
}

TEST_F(FileContract, ContentIsReadWholeWithItsZerosAndLineEnds) {
  const std::string content("a\r\nb\0c\x1A\xFF\n", 9);
  machine->add_file(path_of("a.bin"), content);
  EXPECT_EQ(platform.files.read_file(path_of("a.bin")), content);
  EXPECT_EQ(platform.files.file_size(path_of("a.bin")), 9U);
}

TEST_F(FileContract, ContentLargerThanAnyBufferIsReadWhole) {
  std::string content;
  for (int i = 0; content.size() < 300'000; ++i) content += std::to_string(i);
  machine->add_file(path_of("a.bin"), content);
  EXPECT_TRUE(platform.files.read_file(path_of("a.bin")) == content);
}

TEST_F(FileContract, AnEmptyFileHasAnEmptyContent) {
  machine->add_file(path_of("a.txt"), "");
  EXPECT_EQ(platform.files.read_file(path_of("a.txt")), "");
  EXPECT_EQ(platform.files.file_size(path_of("a.txt")), 0U);
}

TEST_F(FileContract, TheCaseOfAPathMakesNoDifference) {
  machine->add_folder(path_of("Sub"));
  machine->add_file(path_of("Sub\\\xC3\x84rger.TXT"), "x");
  EXPECT_EQ(platform.files.read_file(path_of("sUB\\\xC3\xA4RGER.txt")), "x");
}

TEST_F(FileContract, WritingMakesAFile) {
  EXPECT_TRUE(platform.files.write_file(path_of("a.txt"), std::string_view("a\0b\r\n", 5)));
  EXPECT_EQ(platform.files.read_file(path_of("a.txt")), std::string("a\0b\r\n", 5));
}

TEST_F(FileContract, WritingReplacesTheWholeOldContentAndLeavesNothingBeside) {
  machine->add_file(path_of("a.txt"), "a long old content");
  EXPECT_TRUE(platform.files.write_file(path_of("a.txt"), "new"));
  EXPECT_EQ(platform.files.read_file(path_of("a.txt")), "new");
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "*.*")), Names{"a.txt"});
}

TEST_F(FileContract, WritingUnderAnotherCaseReplacesTheSameFile) {
  machine->add_file(path_of("List.TXT"), "old");
  EXPECT_TRUE(platform.files.write_file(path_of("list.txt"), "new"));
  EXPECT_EQ(platform.files.read_file(path_of("List.TXT")), "new");
  EXPECT_EQ(platform.files.list_folder(machine->folder(), "*.*").size(), 1U);
}

TEST_F(FileContract, WritingWhereNoFileCanBeFailsAndMakesNothing) {
  for (const std::string& path : {path_of("missing\\a.txt"), std::string("1:\\a"), std::string(),
                                  path_of(std::string(260, 'a'))}) {
    EXPECT_FALSE(platform.files.write_file(path, "x")) << path;
  }
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "*.*")), Names{});
}

TEST_F(FileContract, AReadOnlyFileKeepsItsContent) {
  machine->add_file(path_of("a.txt"), "old");
  ASSERT_TRUE(platform.files.set_attributes(path_of("a.txt"), kAttributeReadOnly));
  EXPECT_FALSE(platform.files.write_file(path_of("a.txt"), "new"));
  EXPECT_EQ(platform.files.read_file(path_of("a.txt")), "old");
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "*.*")), Names{"a.txt"});
}

TEST_F(FileContract, AFileInUseCanBeReadButKeepsItsContent) {
  machine->add_file(path_of("a.txt"), "old");
  machine->hold_open(path_of("a.txt"));
  EXPECT_FALSE(platform.files.write_file(path_of("a.txt"), "new"));
  EXPECT_EQ(platform.files.read_file(path_of("a.txt")), "old");
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "*.*")), Names{"a.txt"});
}

TEST_F(FileContract, RemovingAFileRemovesItAlone) {
  machine->add_file(path_of("a.txt"), "");
  machine->add_file(path_of("b.txt"), "");
  EXPECT_EQ(platform.files.remove_file(path_of("A.txt")), RemoveResult::kRemoved);
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "*.*")), Names{"b.txt"});
  EXPECT_EQ(platform.files.remove_file(path_of("a.txt")), RemoveResult::kMissing);
}

TEST_F(FileContract, AReadOnlyFileIsDeniedUntilTheAttributeIsGone) {
  machine->add_file(path_of("a.txt"), "");
  ASSERT_TRUE(platform.files.set_attributes(path_of("a.txt"), kAttributeReadOnly));
  EXPECT_EQ(platform.files.remove_file(path_of("a.txt")), RemoveResult::kDenied);
  EXPECT_TRUE(platform.files.attributes(path_of("a.txt")).has_value());
  ASSERT_TRUE(platform.files.set_attributes(path_of("a.txt"), kAttributeNormal));
  EXPECT_EQ(platform.files.remove_file(path_of("a.txt")), RemoveResult::kRemoved);
}

TEST_F(FileContract, AFileInUseStays) {
  machine->add_file(path_of("a.txt"), "x");
  machine->hold_open(path_of("a.txt"));
  EXPECT_EQ(platform.files.remove_file(path_of("a.txt")), RemoveResult::kInUse);
  EXPECT_EQ(platform.files.file_size(path_of("a.txt")), 1U);
}

TEST_F(FileContract, AFolderIsDeniedAndStays) {
  machine->add_folder(path_of("sub"));
  EXPECT_EQ(platform.files.remove_file(path_of("sub")), RemoveResult::kDenied);
  EXPECT_TRUE(platform.files.attributes(path_of("sub")).has_value());
}

}  // namespace
}  // namespace quillvane
