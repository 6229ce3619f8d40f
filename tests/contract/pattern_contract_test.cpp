// What file patterns match: the portable rule, a listing and a walk must agree, and on Windows the
// listing is Windows' own word.
#include <string>

#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

struct Case {
  const char* pattern;
  const char* name;
};

constexpr Case kMatches[] = {
    // Everything.
    {"*.*", "a.b"},
    {"*.*", "a"},
    {"*.*", ".a"},
    {"*", "a.b"},
    // An extension.
    {"*.tmp", "a.tmp"},
    {"*.tmp", "a.b.tmp"},
    {"*.log", "a.log"},
    {"~*.dat", "~a.dat"},
    {"~font*.dat", "~font1.dat"},
    // ".*" also means "no extension".
    {"History.*", "History"},
    {"History.*", "History.dat"},
    {"History.*", "History.a.b"},
    // Case never matters, above ASCII either.
    {"*.TMP", "a.tmp"},
    {"history.*", "HISTORY.DAT"},
    {"\xC3\xA4.txt", "\xC3\x84.TXT"},
    // A whole name.
    {"FNTCACHE.DAT", "fntcache.dat"},
    {"a b.txt", "a b.txt"},
    // One character.
    {"a?c.txt", "abc.txt"},
    {"?.txt", "\xC3\xA4.txt"},
    // Nothing but question marks and stars is special.
    {"[a].txt", "[a].txt"},
    {"a+(b).txt", "a+(b).txt"},
    // A star in the middle.
    {"a*c.txt", "abbc.txt"},
    {"a*c.txt", "ac.txt"},
    {"*b*", "abc"},
};

constexpr Case kMisses[] = {
    {"*.tmp", "a.tmq"},    {"*.tmp", "tmp"},
    {"*.tmp", "a.tm"},     {"History.*", "History2"},
    {"History.*", "Hist"}, {"a?c.txt", "abbc.txt"},
    {"a?c.txt", "ac.txt"}, {"[ab].txt", "a.txt"},
    {"a.txt", "b.txt"},    {"a", "a.b"},
    {"*b", "ba"},          {"a??", "abcd"},
};

struct FinePoint {
  const char* pattern;
  const char* name;
  bool matches;
};

// Points that Wine's own listings get wrong.
constexpr FinePoint kFinePoints[] = {
    // A question mark is no character before a dot and at the end.
    {"a?.txt", "a.txt", true},
    {"a???.txt", "ab.txt", true},
    {"ab??", "ab", true},
    {"a?b.txt", "ab.txt", false},
    // A dot at the end of the pattern: names without extension.
    {"*.", "a", true},
    {"*.", "a.b", false},
};

class PatternContract : public ContractTest {
 protected:
  // The files of the walk's first folder, and only those.
  Names walked(const std::string& pattern) {
    const auto tree = platform.files.read_tree(machine->folder(), pattern);
    Names names;
    if (tree == nullptr) return names;
    for (std::uint32_t i = 0; i < tree->root().file_count(); ++i) {
      names.emplace_back(tree->root().name_of(i));
    }
    return names;
  }
};

TEST_F(PatternContract, TheseNamesMatch) {
  for (const auto& [pattern, name] : kMatches) {
    machine->add_file(path_of(name), "");
    EXPECT_TRUE(matches_file_pattern(name, pattern)) << pattern << " on " << name;
    EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), pattern)), Names{name})
        << pattern;
    EXPECT_EQ(walked(pattern), Names{name}) << pattern;
    EXPECT_EQ(platform.files.remove_file(path_of(name)), RemoveResult::kRemoved) << name;
  }
}

TEST_F(PatternContract, TheseNamesDoNotMatch) {
  for (const auto& [pattern, name] : kMisses) {
    machine->add_file(path_of(name), "");
    EXPECT_FALSE(matches_file_pattern(name, pattern)) << pattern << " on " << name;
    EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), pattern)), Names{}) << pattern;
    EXPECT_EQ(walked(pattern), Names{}) << pattern;
    EXPECT_EQ(platform.files.remove_file(path_of(name)), RemoveResult::kRemoved) << name;
  }
}

TEST_F(PatternContract, QuestionMarksAndDotsHaveTheirFinePoints) {
  for (const auto& [pattern, name, matches] : kFinePoints) {
    const Names expected = matches ? Names{name} : Names{};
    machine->add_file(path_of(name), "");
    EXPECT_EQ(matches_file_pattern(name, pattern), matches) << pattern << " on " << name;
    EXPECT_EQ(walked(pattern), expected) << pattern;
    if (machine->lists_like_windows()) {
      EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), pattern)), expected)
          << pattern;
    }
    EXPECT_EQ(platform.files.remove_file(path_of(name)), RemoveResult::kRemoved) << name;
  }
}

TEST_F(PatternContract, ALongNameIsMatchedByItsShortNameToo) {
  machine->add_file(path_of("report.tmpx"), "");  // short: something like REPORT~1.TMP
  EXPECT_FALSE(matches_file_pattern("report.tmpx", "*.tmp"));
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "*.tmp")), Names{"report.tmpx"});
  EXPECT_EQ(walked("*.tmp"), Names{"report.tmpx"});
}

TEST_F(PatternContract, AFolderIsListedByItsPatternLikeAFile) {
  machine->add_folder(path_of("logs.tmp"));
  machine->add_folder(path_of("logs.old"));
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "*.tmp")), Names{"logs.tmp"});
}

TEST_F(PatternContract, APatternIsForNamesNotForPaths) {
  machine->add_folder(path_of("sub"));
  machine->add_file(path_of("sub\\a.tmp"), "");
  EXPECT_EQ(names_of(platform.files.list_folder(machine->folder(), "sub\\*.tmp")), Names{});
  EXPECT_EQ(walked("sub\\*.tmp"), Names{});
}

}  // namespace
}  // namespace quillvane
