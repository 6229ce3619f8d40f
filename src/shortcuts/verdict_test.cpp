#include "shortcuts/verdict.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>

#include "shortcuts/shell_link.h"
#include "tests/support/link_corpus.h"
#include "tests/support/temp_machine.h"

namespace quillvane {
namespace {

constexpr std::string_view kDrives =
    R"({"drives": [{"letter": "C"}, {"letter": "E", "type": "removable"},
                   {"letter": "F", "type": "remote"}, {"letter": "G", "type": "cdrom"},
                   {"letter": "H", "type": "ramdisk"}]})";

class Verdict : public testing::Test {
 protected:
  [[nodiscard]] static LinkContent to(const std::string& target) {
    LinkContent shortcut;
    shortcut.target = target;
    shortcut.has_target = true;
    return shortcut;
  }
  [[nodiscard]] bool is_listed(const std::string& target, bool check1 = false) const {
    return is_broken(platform_, to(target), check1);
  }
  [[nodiscard]] std::string console_says(const std::string& target) const {
    const ShortcutFinding finding = judge_shortcut(platform_, to(target));
    return std::string(verdict_text(finding.verdict)) + ": " + finding.looked_up;
  }
  void set(const std::string& path, std::uint32_t bits) {
    ASSERT_TRUE(platform_.files.set_attributes(path, bits));
  }

  TempMachine machine_{kDrives};
  Platform platform_ = machine_.platform();
};

TEST_F(Verdict, AnExistingFileIsGood) {
  machine_.add_file("C:\\a.txt");
  EXPECT_FALSE(is_listed("C:\\A.TXT"));
}

TEST_F(Verdict, AHiddenOrSystemFileIsGoodThoughTheLookupMissesIt) {
  for (const std::uint32_t bit : {kAttributeHidden, kAttributeSystem}) {
    const std::string path = "C:\\" + std::to_string(bit);
    machine_.add_file(path);
    set(path, bit);
    EXPECT_FALSE(is_listed(path)) << bit;
  }
}

TEST_F(Verdict, AnExistingFolderIsGoodWhateverItsAttributes) {
  for (const std::uint32_t bits :
       {std::uint32_t{0}, kAttributeReadOnly, kAttributeHidden, kAttributeSystem}) {
    const std::string path = "C:\\folder" + std::to_string(bits);
    machine_.add_folder(path);
    if (bits != 0) set(path, bits);
    EXPECT_FALSE(is_listed(path)) << bits;
    EXPECT_FALSE(is_listed(path + "\\")) << bits;
  }
  EXPECT_FALSE(is_listed("C:\\"));
}

TEST_F(Verdict, AMissingFileOrFolderIsBad) {
  machine_.add_folder("C:\\folder");
  EXPECT_TRUE(is_listed("C:\\a.txt"));
  EXPECT_TRUE(is_listed("C:\\folder\\a.txt"));
  EXPECT_TRUE(is_listed("C:\\missing\\"));
}

TEST_F(Verdict, AMissingDriveOrShareIsBad) {
  EXPECT_TRUE(is_listed("Q:\\a.txt"));
  EXPECT_TRUE(is_listed("\\\\server\\share\\a.txt"));
}

TEST_F(Verdict, AnEmptyTargetThatWasToldIsBad) {
  machine_.add_file("C:\\a.txt");
  EXPECT_TRUE(is_listed(""));
  EXPECT_TRUE(is_listed("", true));
}

TEST_F(Verdict, AShortcutThatCouldNotBeLoadedIsGood) {
  EXPECT_FALSE(is_broken(platform_, LinkContent(), false));
  EXPECT_FALSE(is_broken(platform_, LinkContent(), true));
}

TEST_F(Verdict, Check1LeavesOutRemovableRemoteAndCdDrivesAndShares) {
  const std::pair<const char*, bool> cases[] = {
      {"C:\\a", true},          {"E:\\a", false},
      {"F:\\a", false},         {"G:\\a", false},
      {"H:\\a", true},          {"Q:\\a", true},
      {"e:\\a", false},         {"  E:\\a", false},
      {"Elsewhere", false},     {"\\\\server\\s\\a", false},
      {" \\\\server\\s", true},
  };
  for (const auto& [target, is_still_listed] : cases) {
    EXPECT_TRUE(is_listed(target, false)) << target;
    EXPECT_EQ(is_listed(target, true), is_still_listed) << target;
  }
}

TEST_F(Verdict, OnlyTheTargetCounts) {
  machine_.add_file("C:\\a.txt");
  LinkContent shortcut = to("C:\\a.txt");
  shortcut.working_directory = "Q:\\";
  shortcut.icon_file = "Q:\\a.ico";
  shortcut.arguments = "Q:\\a";
  EXPECT_FALSE(is_broken(platform_, shortcut, false));
  shortcut.target = "C:\\b.txt";
  shortcut.working_directory = "C:\\";
  EXPECT_TRUE(is_broken(platform_, shortcut, false));
}

TEST_F(Verdict, DirectoryExistsIsTrueForFoldersThatTheLookupSees) {
  machine_.add_folder("C:\\folder");
  machine_.add_folder("C:\\hidden");
  machine_.add_file("C:\\a.txt");
  set("C:\\hidden", kAttributeHidden);
  EXPECT_TRUE(DirectoryExists(platform_.files, "C:\\folder"));
  EXPECT_FALSE(DirectoryExists(platform_.files, "C:\\hidden"));
  EXPECT_FALSE(DirectoryExists(platform_.files, "C:\\a.txt"));
  EXPECT_FALSE(DirectoryExists(platform_.files, "C:\\missing"));
  EXPECT_FALSE(DirectoryExists(platform_.files, ""));
}

TEST_F(Verdict, TheConsoleTellsWhatWasLookedUp) {
  machine_.add_file("C:\\a.txt");
  machine_.add_folder("E:\\");
  EXPECT_EQ(console_says("C:\\a.txt"), "present: C:\\a.txt");
  EXPECT_EQ(console_says("C:\\"), "present: C:\\");
  EXPECT_EQ(console_says("C:\\b.txt"), "missing: C:\\b.txt");
  EXPECT_EQ(console_says("E:\\b.txt"), "missing: E:\\b.txt");
  EXPECT_EQ(console_says("Q:\\b\\c.txt"), "unreachable: Q:\\");
  EXPECT_EQ(console_says("\\\\server\\share\\a\\b"), "unreachable: \\\\server\\share\\");
  EXPECT_EQ(console_says("\\\\server\\share"), "unreachable: \\\\server\\share\\");
  EXPECT_EQ(console_says("\\\\server"), "unreachable: \\\\server\\");
  EXPECT_EQ(console_says(""), "not a file: ");
  EXPECT_EQ(console_says("notepad.exe"), "not a file: notepad.exe");
}

// A drive that is known and has nothing in it now, such as an empty card reader.
TEST_F(Verdict, ADriveWithoutAMediumIsUnreachable) {
  EXPECT_EQ(console_says("G:\\a.txt"), "unreachable: G:\\");
}

TEST_F(Verdict, ReadShortcutTouchesNothingForAnEmptyPath) {
  LinkContent shortcut = to("C:\\left from before");
  EXPECT_FALSE(ReadShortcut(platform_.links, "", shortcut));
  EXPECT_EQ(shortcut.target, "");
  EXPECT_FALSE(shortcut.has_target);
}

TEST_F(Verdict, WriteShortcutNeedsAPathAndATarget) {
  EXPECT_FALSE(WriteShortcut(platform_.links, "", to("C:\\a.txt")));
  EXPECT_FALSE(WriteShortcut(platform_.links, "C:\\a.lnk", to("")));
  EXPECT_FALSE(machine_.has_file("C:\\a.lnk"));
  EXPECT_TRUE(WriteShortcut(platform_.links, "C:\\a.lnk", to("C:\\a.txt")));
  EXPECT_TRUE(machine_.has_file("C:\\a.lnk"));
}

// What is told of each class of links, the window first, then the console.
struct Expected {
  int count;
  bool is_listed;
  bool is_listed_with_check1;
  const char* verdict;
};

const std::map<std::string_view, Expected> kExpected = {
    {"file", {30, false, false, "present"}},
    {"folder", {20, false, false, "present"}},
    {"hidden", {15, false, false, "present"}},
    {"read-only", {15, false, false, "present"}},
    {"missing", {30, true, true, "missing"}},
    {"missing drive", {15, true, true, "unreachable"}},
    {"share", {15, true, false, "unreachable"}},
    {"empty target", {10, true, true, "not a file"}},
    {"shell item", {15, true, true, "not a file"}},
    {"environment path", {15, false, false, "present"}},
    {"garbage", {10, false, false, "not a file"}},
    {"overlong", {10, true, true, "missing"}},
};

TEST(LinkCorpus, EachClassHasItsVerdict) {
  TempMachine machine;
  std::map<std::string_view, int> counts;

  for (const CorpusLink& link : stage_link_corpus(machine)) {
    const Platform platform = machine.platform();
    LinkContent shortcut;
    const bool was_read = ReadShortcut(platform.links, link.path, shortcut);

    const Expected& expected = kExpected.at(link.link_class);
    ++counts[link.link_class];
    EXPECT_EQ(was_read, link.link_class != "garbage") << link.path;
    EXPECT_EQ(shortcut.target, link.target) << link.path;
    EXPECT_EQ(is_broken(platform, shortcut, false), expected.is_listed) << link.path;
    EXPECT_EQ(is_broken(platform, shortcut, true), expected.is_listed_with_check1) << link.path;
    EXPECT_STREQ(verdict_text(judge_shortcut(platform, shortcut).verdict), expected.verdict)
        << link.path;
  }

  int total = 0;
  for (const auto& [link_class, expected] : kExpected) {
    EXPECT_EQ(counts[link_class], expected.count) << link_class;
    total += counts[link_class];
  }
  EXPECT_EQ(total, 200);
}

}  // namespace
}  // namespace quillvane
