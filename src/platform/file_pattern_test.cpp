#include "platform/file_pattern.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/file_system.h"

namespace quillvane {

namespace {

struct Case {
  const char* pattern;
  const char* name;
};

constexpr Case kMatches[] = {
    // Every name, with and without a dot.
    {"*.*", "a.txt"},
    {"*.*", "History"},
    {"*.*", ".gitignore"},
    {"*", "a.txt"},
    {"*", "History"},
    {"*.*.", "History"},
    {"*.* ", "a"},
    // A name's end.
    {"*.tmp", "a.tmp"},
    {"*.tmp", "A.TMP"},
    {"*.TMP", "a.b.tmp"},
    {"*.tmp", ".tmp"},
    {"*.tmp ", "a.tmp"},
    {"*.c", "a.c"},
    {"*.tar.gz", "b.tar.gz"},
    {"*.txt.txt", "a.txt.txt"},
    // ".*" is any extension or none.
    {"History.*", "History"},
    {"History.*", "HISTORY.DAT"},
    {"History.*", "History.a.b"},
    {"*-journal.*", "Cookies-journal"},
    {"*-journal.*", "COOKIES-Journal.old.bak"},
    {"*-journal.*", "a.b-journal"},
    {"*-journal.*", "-journal"},
    {"*-journal.*", "-journals.x-journal"},
    {"Top Sites.*", "top sites"},
    {"Top Sites.*", "Top Sites."},
    // A small dotless i has the capital I here too.
    {"History.*", "h\xC4\xB1story.dat"},
    {"*-journal.*", "\xC3\xA4-journal.x"},
    {"a*.*", "abc"},
    {"a*.*", "abc.d.e"},
    {"~*.dat", "~a.dat"},
    {"~*.dat", "~.dat"},
    // A dot at the end asks for names without one.
    {"*.", "History"},
    {"a*.", "abc"},
    {"History.", "History"},
    // '?' is one character, or none before a dot and at the end.
    {"a?.txt", "ab.txt"},
    {"a?.txt", "a.txt"},
    {"a??", "a"},
    {"a??", "abc"},
    {"???", "ab"},
    {"*.?", "a.b"},
    {"*.?", "a"},
    {"a.?", "a"},
    {"a?b", "axb"},
    // '*' anywhere.
    {"a*b*c", "a-b-b-c"},
    {"*cache*", "IndexedCacheData"},
    {"*_cache_*.db", "thumb_cache_96.db"},
    {"thumbcache_*.db", "thumbcache_1.2.db"},
    {"*a*", "a"},
    {"exact.txt", "Exact.TXT"},
    // Letters above ASCII have cases too; a character beyond 0xFFFF is two units.
    {"*.Ä", "x.ä"},
    {"ÉTÉ*", "étéindien"},
    {"ΣΊΓΜΑ", "σίγμα"},
    {"a??b",
     "a\xF0\x9F\x98\x80"
     "b"},
    // Bytes that are no UTF-8 are characters like any other.
    {"*.tmp", "\xFF\xFE.tmp"},
    {"a?.tmp", "a\xFF.tmp"},
    {"a\xFF*", "a\xFF.tmp"},
    // The small dotless i has the capital I.
    {"*.ini", "a.\xC4\xB1ni"},
};

constexpr Case kMisses[] = {
    {"", "a"},
    {".", "a"},
    {"..", "a"},
    {" ", " "},
    {"*.tmp", "tmp"},
    {"*.tmp", "a.tmpx"},
    {"*.tmp", "a.tm"},
    {"*.tmp", "a.tmp.bak"},
    {"*.txt", "atxt"},
    {"History.*", "Historical"},
    {"History.*", "History2.dat"},
    {"History.*", "My History"},
    {"History.*", "Histor"},
    {"*-journal.*", "Cookies-journal2"},
    {"*-journal.*", "Cookies-journal2.x"},
    {"*-journal.*", "journal"},
    {"*-journal.*", "-journals.x"},
    {"*-journal.*", "\xC3\xA4-journals"},
    {"~*.dat", "a~.dat"},
    {"~*.dat", "~a.data"},
    {"*.", "a.txt"},
    {"*.", ".gitignore"},
    {"a*.", "ab.c"},
    {"a?.txt", "abc.txt"},
    {"a?b", "ab"},
    {"a?b", "a.b"},
    {"a??", "abcd"},
    {"?", "ab"},
    {"*.?", "a.bc"},
    {"a*b*c", "a-c-b"},
    {"exact.txt", "exact.txt2"},
    {"exact.txt2", "exact.txt"},
    {"a?b",
     "a\xF0\x9F\x98\x80"
     "b"},
    {"sub\\*.*", "sub"},
    {"*x.*y", "ab"},
    {"*.*x", "abx"},
};

}  // namespace

TEST(FilePattern, MatchesTheNamesThatWindowsMatches) {
  for (const Case& c : kMatches) {
    EXPECT_TRUE(matches_file_pattern(c.name, c.pattern)) << c.pattern << " on " << c.name;
  }
}

TEST(FilePattern, LeavesTheNamesThatWindowsLeaves) {
  for (const Case& c : kMisses) {
    EXPECT_FALSE(matches_file_pattern(c.name, c.pattern)) << c.pattern << " on " << c.name;
  }
}

TEST(FilePattern, AnswersManyNamesOnceMade) {
  const FilePattern pattern("*.log");
  EXPECT_TRUE(pattern.matches("setup.log"));
  EXPECT_FALSE(pattern.matches("setup.txt"));
  EXPECT_TRUE(pattern.matches("SETUP.LOG"));
}

TEST(FilePattern, TellsWhichPatternsNeedNoLookAtTheName) {
  EXPECT_TRUE(FilePattern("*.*").matches_every_name());
  EXPECT_TRUE(FilePattern("*").matches_every_name());
  EXPECT_FALSE(FilePattern("*.").matches_every_name());
  EXPECT_FALSE(FilePattern("a*.*").matches_every_name());
}

TEST(FilePattern, TellsWhetherOnlyTheEndOfANameDecides) {
  EXPECT_TRUE(FilePattern("*.tmp").ends_decide());
  EXPECT_FALSE(FilePattern("~*.tmp").ends_decide());
  EXPECT_FALSE(FilePattern("*.t?p").ends_decide());
  EXPECT_FALSE(FilePattern("*.tar.gz").ends_decide());
}

TEST(FilePattern, TellsWhichPatternsMatchNoNameThatADiskMakesUp) {
  for (const char* pattern : {"History.*", "*-journal.*", "Top Sites.*", "*tmp1x.*"}) {
    EXPECT_TRUE(FilePattern(pattern).matches_no_made_up_name()) << pattern;
  }
  for (const char* pattern : {"thumbs.db", "hs_err_pid*.log", "*.log.old", ".~lock.*#", "abcdefg*",
                              "*.exe.*.dmp", "a.b~*", "abc"}) {
    EXPECT_TRUE(FilePattern(pattern).matches_no_made_up_name()) << pattern;
  }
  for (const char* pattern : {"dd_*.log", "*~", "*.??~", "*.~*", "file????.chk", "abcdef*",
                              "abcdef~1.txt", "a*", "letter~?.txt", "*a.txt"}) {
    EXPECT_FALSE(FilePattern(pattern).matches_no_made_up_name()) << pattern;
  }
  // "LETTER~1.*" is made up; "*tmp.*" matches "A~1.TMP", "*~1.*" matches "A~1.TXT".
  for (const char* pattern : {"LETTER~1.*", "*~1.*", "*tmp.*", "*.tmp", "a?.*", "*.*"}) {
    EXPECT_FALSE(FilePattern(pattern).matches_no_made_up_name()) << pattern;
  }
}

// What a name must begin and end with is looked at first.
TEST(FilePattern, FixedEndsAreOfNoMatterToTheAnswer) {
  for (const auto& [pattern, name] :
       {Case{"dd_*.log", "DD_x.LOG"}, Case{"dd_*.log", "dd_.log"}, Case{"ab*ba", "abba"},
        Case{"i*", "\xC4\xB1x"}, Case{"*i", "x\xC4\xB1"}}) {
    EXPECT_TRUE(matches_file_pattern(name, pattern)) << name;
  }
  for (const auto& [pattern, name] : {Case{"dd_*.log", "d_x.log"}, Case{"dd_*.log", "dd_x.lo"},
                                      Case{"ab*ba", "aba"}, Case{"abc*", "ab"}}) {
    EXPECT_FALSE(matches_file_pattern(name, pattern)) << name;
  }
}

TEST(FilePattern, ManyStarsDoNotMultiplyTheWork) {
  std::string pattern;
  for (int i = 0; i < 100; ++i) pattern += "*a";
  const std::string name(250, 'a');
  EXPECT_TRUE(matches_file_pattern(name, pattern));
  EXPECT_FALSE(matches_file_pattern(name, pattern + "b"));
}

TEST(FilePattern, APatternOrNameTooLongForAPathMatchesNothing) {
  EXPECT_TRUE(matches_file_pattern(std::string(259, 'a'), "*a"));
  EXPECT_FALSE(matches_file_pattern(std::string(260, 'a'), "*a"));
  EXPECT_FALSE(matches_file_pattern("a", std::string(260, '*')));
}

}  // namespace quillvane
