#include "support/like.h"

#include <gtest/gtest.h>

#include <string_view>

#include "support/text.h"

namespace quillvane {
namespace {

struct LikeCase {
  std::string_view text;
  std::string_view pattern;
};

constexpr LikeCase kAlike[] = {
    {"", ""},
    {"", "*"},
    {"abc", "abc"},
    // "?" is one character, however many bytes it has.
    {"abc", "a?c"},
    {"ä", "?"},
    {"x~y", "?~?"},
    {"ab~", "??~"},
    // "*" is any run, the empty one too.
    {"abc", "*"},
    {"abc", "a*"},
    {"abc", "*c"},
    {"abc", "*b*"},
    {"abc", "abc*"},
    {".~a", ".~*"},
    {"aXbXc", "a*b*c"},
    {"abab", "*ab"},
    {"mississippi", "m*iss*pi"},
    {"aaaaaaaaaaaaaaaaaaaaaaaaaab", "*a*a*a*a*a*a*a*a*b"},
    // "#" is a digit, "[...]" one of a set.
    {"a7", "a#"},
    {"b", "[a-c]"},
    {"x", "[axz]"},
    {"d", "[!a-c]"},
    {"*", "[*]"},
    {"?", "[?]"},
    {"local disk (c:)", "local disk (c:)"},
    // A hyphen at the beginning or the end of a set stands for itself, as a bracket alone does.
    {"-", "[-a]"},
    {"-", "[a-]"},
    {"a]", "a]"},
    {"!", "[!]"},
    // An empty set takes nothing.
    {"ab", "a[]b"},
    {"Ä.txt", "[Ä-Ü].txt"},
};

TEST(Like, HoldsForAPatternThatFitsTheWholeText) {
  for (const auto& [text, pattern] : kAlike) {
    EXPECT_TRUE(Like(text, pattern)) << "\"" << text << "\" like \"" << pattern << "\"";
  }
}

constexpr LikeCase kUnlike[] = {
    {"abc", ""},     {"", "?"},
    {"", "a"},       {"abc", "ABC"},  // exact in case
    {"abc", "ab"},   {"abc", "bc"},
    {"ab", "abc"},   {"abc", "a?"},
    {"abc", "????"}, {"abc", "*b"},
    {"abc", "b*"},   {"abc", "*bb*"},
    {"a", "a*a"},    {"ax", "a#"},
    {"d", "[a-c]"},  {"b", "[!a-c]"},
    {"", "[a-c]"},   {"aaaaaaaaaaaaaaaaaaaaaaaaaaa", "*a*a*a*a*a*a*a*a*b"},
    {"-", "[!a-]"},  {"b-", "[a-]-"},
    {"axb", "a[]b"}, {"remote drive (c:)", "local disk (c:)"},
};

TEST(Like, FailsForAPatternThatDoesNot) {
  for (const auto& [text, pattern] : kUnlike) {
    EXPECT_FALSE(Like(text, pattern)) << "\"" << text << "\" like \"" << pattern << "\"";
  }
}

TEST(Like, FailsForAnIllFormedPattern) {
  for (const std::string_view pattern : {"[", "*[", "a[b", "[!", "[a-c", "[z-a]", "x[", "[]["}) {
    EXPECT_EQ(likeness("a", pattern), Likeness::kIllFormed) << pattern;
    EXPECT_EQ(likeness("", pattern), Likeness::kIllFormed) << pattern;
    EXPECT_FALSE(Like("a", pattern)) << pattern;
    EXPECT_FALSE(Like(pattern, pattern)) << pattern;
  }
}

TEST(Like, TellsALikenessFromNone) {
  EXPECT_EQ(likeness("a.bak", "*.bak"), Likeness::kLike);
  EXPECT_EQ(likeness("a.bak", "*.old"), Likeness::kUnlike);
  EXPECT_EQ(likeness("a]", "a]"), Likeness::kLike);
}

}  // namespace
}  // namespace quillvane
