// Listings of one folder.
#include <string>

#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

class ListingContract : public ContractTest {};

TEST_F(ListingContract, EntriesComeByNameWithoutRegardToCase) {
  for (const char* name : {"b.txt", "C.txt", "a.txt", "B2.txt", "_.txt"}) {
    machine->add_file(path_of(name), "");
  }
  machine->add_folder(path_of("Aa"));
  // In upper case: the underscore stands behind the letters.
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "*.*")),
            (Names{"a.txt", "Aa", "b.txt", "B2.txt", "C.txt", "_.txt"}));
}

TEST_F(ListingContract, TheDotEntriesAreLeftOut) {
  machine->add_folder(path_of("sub"));
  EXPECT_EQ(names_of(platform.files.list_folder(path_of("sub"), "*.*")), Names{});
  for (const std::string& name : names_of(platform.files.list_folder("C:\\", "*.*"))) {
    EXPECT_TRUE(name != "." && name != "..") << name;
  }
}

TEST_F(ListingContract, ATrailingBackslashMakesNoDifference) {
  machine->add_file(path_of("a.txt"), "");
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder() + "\\", "*.*")), Names{"a.txt"});
}

TEST_F(ListingContract, TheCaseOfTheFolderMakesNoDifference) {
  machine->add_folder(path_of("SubFolder"));
  machine->add_file(path_of("SubFolder\\a.txt"), "");
  EXPECT_EQ(names_of(platform.files.list_folder(path_of("sUBfOLDER"), "*.*")), Names{"a.txt"});
}

TEST_F(ListingContract, AnEntryTellsSizeAndKind) {
  machine->add_file(path_of("a.txt"), "12345");
  machine->add_folder(path_of("sub"));
  const auto entries = platform.files.list_folder(machine->folder(), "*.*");
  ASSERT_EQ(names_of(entries), (Names{"a.txt", "sub"}));
  EXPECT_EQ(entries[0].size_bytes, 5U);
  EXPECT_FALSE(entries[0].is_folder());
  EXPECT_TRUE(entries[1].is_folder());
}

TEST_F(ListingContract, SizesAreWholeAbove4GiB) {
  constexpr std::uint64_t kBytes = 5ULL * 1024 * 1024 * 1024 + 7;
  machine->add_big_file(path_of("big.dmp"), kBytes);
  const auto entries = platform.files.list_folder(machine->folder(), "big.dmp");
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].size_bytes, kBytes);
  EXPECT_EQ(platform.files.file_size(path_of("big.dmp")), kBytes);
}

TEST_F(ListingContract, ANewFilesTimesAreOfThisCentury) {
  machine->add_file(path_of("a.txt"), "");
  const auto entries = platform.files.list_folder(machine->folder(), "a.txt");
  ASSERT_EQ(entries.size(), 1U);
  constexpr FileTime kYear2020{132'223'104'000'000'000};  // 2020-01-01
  constexpr FileTime kYear2100{157'469'184'000'000'000};  // 2100-01-01
  for (const FileTime time : {entries[0].created, entries[0].accessed, entries[0].modified}) {
    EXPECT_GT(time, kYear2020) << time.ticks;
    EXPECT_LT(time, kYear2100) << time.ticks;
  }
}

TEST_F(ListingContract, NamesAboveAsciiComeAsTheyAre) {
  const std::string name = "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80.txt";  // a umlaut, euro, a smiley
  machine->add_file(path_of(name), "");
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "*.*")), Names{name});
}

TEST_F(ListingContract, WhatIsNoFolderListsNothing) {
  machine->add_file(path_of("a.txt"), "");
  for (const std::string& folder :
       {path_of("missing"), path_of("a.txt"), path_of("missing\\deeper"), std::string("1:\\"),
        std::string(), std::string("\\"), std::string("\\Temp")}) {
    EXPECT_EQ(names_of(platform.files.list_folder(folder, "*.*")), Names{}) << folder;
  }
}

TEST_F(ListingContract, FolderAndPatternTogetherStayBelow260) {
  // Folder, backslash and "*.*": 259 can be listed, 260 cannot.
  const std::string parent = path_of("p");
  machine->add_folder(parent);
  const std::size_t room = 259 - 4 - (parent.size() + 1);
  // Two levels, so that no name is longer than a disk takes.
  const std::string upper = parent + "\\" + std::string(room / 2, 'u');
  const std::string fits = upper + "\\" + std::string(room - room / 2 - 1, 'f');
  ASSERT_EQ(fits.size() + 4, 259U);
  machine->add_folder(upper);
  machine->add_folder(fits);
  machine->add_file(fits + "\\a", "");
  EXPECT_EQ(names_of(platform.files.list_folder(fits, "*.*")), Names{"a"});
  EXPECT_EQ(names_of(platform.files.list_folder(fits, "a")), Names{"a"});
  EXPECT_EQ(names_of(platform.files.list_folder(fits, "a*.*")), Names{});
}

}  // namespace
}  // namespace quillvane
