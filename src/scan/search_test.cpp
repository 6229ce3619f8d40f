#include "scan/search.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "support/error_trail.h"
#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

struct SizeCase {
  const char* what;
  std::uint32_t high;
  std::uint32_t low;
  std::optional<double> bytes;
};

constexpr auto kOverflow = std::nullopt;

// high * 2147483647 + low, all signed with 32 bits.
constexpr SizeCase kSizes[] = {
    {"empty", 0, 0, 0},
    {"one byte", 0, 1, 1},
    {"2 GiB less one", 0, 0x7FFFFFFF, 2147483647},
    {"2 GiB", 0, 0x80000000, -2147483648.0},
    {"3 GiB", 0, 0xC0000000, -1073741824},
    {"4 GiB less one", 0, 0xFFFFFFFF, -1},
    {"4 GiB", 1, 0, 2147483647},
    {"4 GiB and one", 1, 1, kOverflow},
    {"5 GiB", 1, 0x40000000, kOverflow},
    {"6 GiB less one", 1, 0x7FFFFFFF, kOverflow},
    {"6 GiB", 1, 0x80000000, -1},
    {"6.5 GiB", 1, 0xA0000000, 536870911},
    {"8 GiB less one", 1, 0xFFFFFFFF, 2147483646},
    {"8 GiB", 2, 0, kOverflow},
    // The sum would fit, the product does not.
    {"10 GiB", 2, 0x80000000, kOverflow},
    // A high word that reads as negative.
    {"-1 high", 0xFFFFFFFF, 0, -2147483647},
    {"-1 high and -1 low", 0xFFFFFFFF, 0xFFFFFFFF, -2147483648.0},
    {"-1 high and -2 low", 0xFFFFFFFF, 0xFFFFFFFE, kOverflow},
    {"-2 high", 0xFFFFFFFE, 0, kOverflow},
};

TEST(FileSizeToDouble, CountsInSigned32BitArithmetic) {
  for (const SizeCase& size : kSizes) {
    EXPECT_EQ(FileSizeToDouble(size.high, size.low), size.bytes) << size.what;
  }
}

constexpr std::uint64_t kGiB = std::uint64_t{1} << 30U;

// A machine, and what a search on it collects.
struct Staged {
  std::vector<std::string> search(const std::string& path, const std::string& pattern,
                                  bool recursive = true) {
    Search run(machine.machine().platform(machine.dialogs()).files, trail);
    run.SearchFiles(path, pattern, recursive);
    found = run.Files();
    std::vector<std::string> names;
    for (std::size_t i = 0; found != nullptr && i < found->Count(); ++i) {
      names.push_back(found->Item(i).FileNameFull);
    }
    return names;
  }

  TempMachine machine;
  ErrorTrail trail{machine.platform().event_log, "Cleaner"};
  std::shared_ptr<const Files> found;
};

using Names = std::vector<std::string>;

TEST(Search, CollectsTheFilesOfSubfoldersFirst) {
  Staged staged;
  for (const char* path : {"C:\\T\\a.txt", "C:\\T\\m\\b.txt", "C:\\T\\m\\deep\\c.txt",
                           "C:\\T\\z\\d.txt", "C:\\T\\x.txt"}) {
    staged.machine.add_file(path);
  }
  EXPECT_EQ(staged.search("C:\\T\\", "*.*"),
            (Names{"C:\\T\\m\\deep\\c.txt", "C:\\T\\m\\b.txt", "C:\\T\\z\\d.txt", "C:\\T\\a.txt",
                   "C:\\T\\x.txt"}));
}

TEST(Search, AppliesThePatternToFilesAndNotToFolders) {
  Staged staged;
  staged.machine.add_file("C:\\T\\sub\\a.log");
  staged.machine.add_file("C:\\T\\sub\\a.txt");
  staged.machine.add_file("C:\\T\\folder.log\\b.etl");
  EXPECT_EQ(staged.search("C:\\T\\", "*.log"), (Names{"C:\\T\\sub\\a.log"}));
}

TEST(Search, StaysInTheFolderUnlessItIsRecursive) {
  Staged staged;
  staged.machine.add_file("C:\\T\\a.txt");
  staged.machine.add_file("C:\\T\\sub\\b.txt");
  EXPECT_EQ(staged.search("C:\\T\\", "*.*", false), (Names{"C:\\T\\a.txt"}));
}

TEST(Search, APathNeedsNoBackslashAtItsEnd) {
  Staged staged;
  staged.machine.add_file("C:\\T\\a.txt");
  EXPECT_EQ(staged.search("C:\\T", "*.*"), (Names{"C:\\T\\a.txt"}));
}

TEST(Search, AFolderThatIsMissingOrDeniedYieldsNothing) {
  Staged staged;
  staged.machine.add_file("C:\\T\\secret\\a.txt");
  staged.machine.add_file("C:\\T\\b.txt");
  staged.machine.machine().add_denied("C:\\T\\secret");
  EXPECT_EQ(staged.search("C:\\T\\missing", "*.*"), Names{});
  EXPECT_EQ(staged.search("C:\\T\\secret", "*.*"), Names{});
  EXPECT_EQ(staged.search("C:\\T", "*.*"), (Names{"C:\\T\\b.txt"}));
}

TEST(Search, HoldsFolderNameAndSizeOfEachFile) {
  Staged staged;
  staged.machine.add_file("C:\\T\\sub\\a.txt", 120);
  ASSERT_EQ(staged.search("C:\\T", "*.*").size(), 1U);
  const File file = staged.found->Item(0);
  EXPECT_EQ(file.FilePath, "C:\\T\\sub\\");
  EXPECT_EQ(file.FileName, "a.txt");
  EXPECT_EQ(file.FileSize, 120);
}

TEST(Search, LooksAttributesUpWhenTheyAreAskedFor) {
  Staged staged;
  staged.machine.add_file("C:\\T\\a.txt");
  ASSERT_EQ(staged.search("C:\\T", "*.*").size(), 1U);
  FileSystem& files = staged.machine.platform().files;
  ASSERT_TRUE(files.set_attributes("C:\\T\\a.txt", kAttributeHidden | kAttributeSystem));
  const File file = staged.found->Item(0);
  EXPECT_EQ(file.FileAttributes(files), kAttributeHidden | kAttributeSystem);
  ASSERT_EQ(files.remove_file("C:\\T\\a.txt"), RemoveResult::kRemoved);
  EXPECT_EQ(file.FileAttributes(files), 0U);
}

// --- The collection.

struct Collected : Staged {
  Collected() {
    for (const char* path : {"C:\\T\\sub\\a", "C:\\T\\sub\\b", "C:\\T\\sub\\c", "C:\\T\\d"}) {
      machine.add_file(path);
    }
    search("C:\\T", "*.*");
    files = std::make_unique<Files>(*found);
  }
  [[nodiscard]] std::string names() const {
    std::string text;
    FilesEnumerator all = files->NewEnum();
    while (const auto file = all.next()) text += file->FileName;
    return text;
  }
  std::unique_ptr<Files> files;
};

TEST(Files, AreEnumeratedInTheirOrder) {
  const Collected collected;
  EXPECT_EQ(collected.files->Count(), 4U);
  EXPECT_EQ(collected.names(), "abcd");
}

TEST(Files, MoveUpWhenOneIsRemoved) {
  const std::string left[] = {"bcd", "acd", "abd", "abc"};
  for (std::size_t i = 0; i < 4; ++i) {
    const Collected collected;
    collected.files->Remove(i);
    EXPECT_EQ(collected.files->Count(), 3U);
    EXPECT_EQ(collected.names(), left[i]);
  }
}

TEST(Files, CanBeRemovedOneAfterTheOther) {
  const Collected collected;
  collected.files->Remove(1);
  collected.files->Remove(1);
  EXPECT_EQ(collected.names(), "ad");
  collected.files->Remove(0);
  EXPECT_EQ(collected.names(), "d");
  EXPECT_EQ(collected.files->Item(0).FileNameFull, "C:\\T\\d");
  collected.files->Remove(0);
  EXPECT_EQ(collected.names(), "");
}

TEST(Search, AnOverflowEndsTheListingOfItsFolderOnly) {
  Staged staged;
  staged.machine.add_file("C:\\T\\big\\a.txt");
  staged.machine.add_file("C:\\T\\big\\m.bin", 5 * kGiB);
  staged.machine.add_file("C:\\T\\big\\z.txt");
  staged.machine.add_file("C:\\T\\big\\sub\\b.txt");
  staged.machine.add_file("C:\\T\\other\\c.txt");
  staged.machine.add_file("C:\\T\\d.txt");
  EXPECT_EQ(staged.search("C:\\T", "*.*"),
            (Names{"C:\\T\\big\\sub\\b.txt", "C:\\T\\big\\a.txt", "C:\\T\\big\\m.bin",
                   "C:\\T\\other\\c.txt", "C:\\T\\d.txt"}));
}

TEST(Search, TheFileThatOverflowedHasNoSizeAndNoFolder) {
  Staged staged;
  staged.machine.add_file("C:\\T\\m.bin", 5 * kGiB);
  ASSERT_EQ(staged.search("C:\\T", "*.*").size(), 1U);
  const File file = staged.found->Item(0);
  EXPECT_EQ(file.FileName, "m.bin");
  EXPECT_EQ(file.FileSize, 0);
  EXPECT_EQ(file.FilePath, "");
}

// The reports that went to the event log.
Names reports(TempMachine& machine) {
  Names texts;
  for (const Effect& effect : machine.effects().take()) {
    if (effect.kind != "event-log") continue;
    for (const auto& [name, value] : effect.details) {
      if (name == "text") texts.push_back(std::get<std::string>(value));
    }
  }
  return texts;
}

TEST(Search, AnOverflowIsReportedWithTheCallsThatLedToIt) {
  Staged staged;
  staged.machine.add_file("C:\\T\\sub\\m.bin", 5 * kGiB);

  staged.search("C:\\T", "*.*");

  const Names texts = reports(staged.machine);
  ASSERT_EQ(texts.size(), 1U);
  EXPECT_NE(texts[0].find("RunTime Error: 6 - "), std::string::npos) << texts[0];
  EXPECT_NE(texts[0].find("\tModule: Search\r\n\tMethod: SearchFiles\r\n"), std::string::npos);
  EXPECT_EQ(texts[0].substr(texts[0].find("Call Stack:")),
            "Call Stack:\r\n"
            "\tModule:   Search\r\n"
            "\tMethod:   SearchFiles(FilePath: C:\\T\\sub, FileName: *.*, Recursive: True)\r\n"
            "\tGlobal:   \r\n\r\n"
            "\tModule:   Search\r\n"
            "\tMethod:   SearchFiles(FilePath: C:\\T, FileName: *.*, Recursive: True)\r\n"
            "\tGlobal:   \r\n\r\n");
}

TEST(Search, LeavesTheTrailAsItFoundIt) {
  Staged staged;
  staged.machine.add_file("C:\\T\\sub\\m.bin", 5 * kGiB);
  staged.trail.push("Test", "outer", "", "");
  const std::string before = staged.trail.dump();
  staged.search("C:\\T", "*.*");
  staged.search("C:\\missing", "*.*");
  EXPECT_EQ(staged.trail.dump(), before);
}

TEST(Search, WritesNoReportWithoutAnOverflow) {
  Staged staged;
  staged.machine.add_file("C:\\T\\a.txt", 3 * kGiB);
  staged.search("C:\\T", "*.*");
  EXPECT_EQ(reports(staged.machine), Names{});
}

}  // namespace
}  // namespace quillvane
