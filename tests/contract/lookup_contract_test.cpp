// Names looked up by patterns and attributes.
#include <string>

#include "platform/name_lookup.h"
#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

class LookupContract : public ContractTest {
 protected:
  [[nodiscard]] bool finds(const std::string& name, std::uint32_t mask) const {
    return finds_name(platform.files, path_of(name), mask);
  }
  void set(const std::string& name, std::uint32_t bits) {
    ASSERT_TRUE(platform.files.set_attributes(path_of(name), bits));
  }
};

TEST_F(LookupContract, AFileIsFoundWithAnyMask) {
  machine->add_file(path_of("a.txt"), "");
  machine->add_file(path_of("fixed.txt"), "");
  set("fixed.txt", kAttributeReadOnly);
  EXPECT_TRUE(finds("A.TXT", 0));
  EXPECT_TRUE(finds("a.txt", kAttributeFolder));
  EXPECT_TRUE(finds("fixed.txt", 0));
  EXPECT_FALSE(finds("b.txt", 0));
}

TEST_F(LookupContract, HiddenAndSystemFilesMustBeAskedFor) {
  for (const std::uint32_t bit : {kAttributeHidden, kAttributeSystem}) {
    const std::string name = std::to_string(bit) + ".txt";
    machine->add_file(path_of(name), "");
    set(name, bit);
    EXPECT_FALSE(finds(name, 0)) << bit;
    EXPECT_FALSE(finds(name, kAttributeFolder)) << bit;
    EXPECT_TRUE(finds(name, bit)) << bit;
    EXPECT_TRUE(platform.files.attributes(path_of(name))) << bit;
  }
}

TEST_F(LookupContract, FoldersMustBeAskedFor) {
  machine->add_folder(path_of("sub"));
  EXPECT_FALSE(finds("sub", 0));
  EXPECT_TRUE(finds("sub", kAttributeFolder));
  EXPECT_TRUE(finds("sub\\", kAttributeFolder));
}

TEST_F(LookupContract, AHiddenFolderIsNotFoundAmongFolders) {
  machine->add_folder(path_of("sub"));
  set("sub", kAttributeHidden);
  EXPECT_FALSE(finds("sub", kAttributeFolder));
  EXPECT_TRUE(finds("sub", kAttributeFolder | kAttributeHidden));
}

TEST_F(LookupContract, ALookupBehindABackslashFindsTheFilesOfTheFolder) {
  machine->add_folder(path_of("empty"));
  machine->add_folder(path_of("full"));
  machine->add_folder(path_of("full\\sub"));
  machine->add_file(path_of("full\\a.txt"), "");
  EXPECT_FALSE(finds("empty\\", 0));
  EXPECT_TRUE(finds("full\\", 0));
  EXPECT_FALSE(finds("missing\\", kAttributeFolder));
}

TEST_F(LookupContract, TheLastNameMayBeAPattern) {
  machine->add_file(path_of("a.txt"), "");
  machine->add_folder(path_of("sub"));
  EXPECT_TRUE(finds("*.txt", 0));
  EXPECT_TRUE(finds("?.txt", 0));
  EXPECT_FALSE(finds("*.log", 0));
  EXPECT_FALSE(finds("s*", 0));
  EXPECT_TRUE(finds("s*", kAttributeFolder));
}

TEST_F(LookupContract, TheRootOfADriveIsAFolder) {
  const std::string root = machine->folder().substr(0, 3);
  EXPECT_TRUE(
      finds_name(platform.files, root, kAttributeFolder | kAttributeHidden | kAttributeSystem));
}

TEST_F(LookupContract, WhatIsNoPathHasNoName) {
  for (const std::string& path : {std::string(), std::string("1:\\a"), path_of("missing\\a.txt"),
                                  path_of(std::string(260, 'a')), std::string("a.txt")}) {
    EXPECT_FALSE(finds_name(platform.files, path, 0)) << path;
    EXPECT_FALSE(finds_name(platform.files, path, kAttributeFolder)) << path;
    EXPECT_FALSE(platform.files.attributes(path)) << path;
  }
}

}  // namespace
}  // namespace quillvane
