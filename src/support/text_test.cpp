#include "support/text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quillvane {
namespace {

using Parts = std::vector<std::string>;

TEST(Trim, TakesBlanksFromBothEnds) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("ab"), "ab");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(Trim, LeavesTabsAndLineEnds) {
  EXPECT_EQ(Trim(" \ta\t "), "\ta\t");
  EXPECT_EQ(Trim("a\r\n"), "a\r\n");
}

TEST(Split, GivesThePartsBetweenSeparators) {
  EXPECT_EQ(Split("w2-c2", "-"), (Parts{"w2", "c2"}));
  EXPECT_EQ(Split("a|b|c", "|"), (Parts{"a", "b", "c"}));
  EXPECT_EQ(Split("Windows ( 3 files, 5 B )", " ("), (Parts{"Windows", " 3 files, 5 B )"}));
}

TEST(Split, KeepsEmptyParts) {
  EXPECT_EQ(Split("-c", "-"), (Parts{"", "c"}));
  EXPECT_EQ(Split("w-", "-"), (Parts{"w", ""}));
  EXPECT_EQ(Split("a||b", "|"), (Parts{"a", "", "b"}));
}

TEST(Split, GivesTheWholeTextWithoutASeparatorInIt) {
  EXPECT_EQ(Split("w2", "-"), (Parts{"w2"}));
  EXPECT_EQ(Split("", "-"), (Parts{""}));
}

TEST(Part, IsEmptyBeyondTheLast) {
  const Parts parts{"w2", "c2"};
  EXPECT_EQ(part(parts, 0), "w2");
  EXPECT_EQ(part(parts, 1), "c2");
  EXPECT_EQ(part(parts, 2), "");
}

TEST(ReplaceAll, ReplacesEveryOccurrence) {
  EXPECT_EQ(replace_all("a,b,c", ",", "|"), "a|b|c");
  EXPECT_EQ(replace_all("system32\\system32", "system32", "Sysnative"), "Sysnative\\Sysnative");
  EXPECT_EQ(replace_all("abc", "b", ""), "ac");
}

TEST(ReplaceAll, LeavesATextWithoutAnOccurrence) {
  EXPECT_EQ(replace_all("abc", "x", "y"), "abc");
  EXPECT_EQ(replace_all("", "x", "y"), "");
  EXPECT_EQ(replace_all("abc", "", "y"), "abc");
}

TEST(ReplaceAll, DoesNotLookIntoWhatItPutIn) {
  EXPECT_EQ(replace_all("aa", "a", "aa"), "aaaa");
  EXPECT_EQ(replace_all("aaa", "aa", "a"), "aa");
}

TEST(TextLines, EndWithAnyLineEnd) {
  EXPECT_EQ(text_lines("a\r\nb\r\n"), (Parts{"a", "b"}));
  EXPECT_EQ(text_lines("a\nb\n"), (Parts{"a", "b"}));
  EXPECT_EQ(text_lines("a\rb\r"), (Parts{"a", "b"}));
  EXPECT_EQ(text_lines("a\r\r\nb"), (Parts{"a", "", "b"}));
}

TEST(TextLines, TheLastLineNeedsNoEnd) {
  EXPECT_EQ(text_lines("a\r\nb"), (Parts{"a", "b"}));
  EXPECT_EQ(text_lines("a"), (Parts{"a"}));
}

TEST(TextLines, KeepEmptyAndBlankLines) {
  EXPECT_EQ(text_lines("\r\n \r\na\r\n"), (Parts{"", " ", "a"}));
  EXPECT_EQ(text_lines(""), Parts{});
}

struct NumberCase {
  double number;
  std::string_view text;
};

constexpr NumberCase kNumbers[] = {
    {0, "0"},
    {12, "12"},
    {-3, "-3"},
    {1.5, "1.5"},
    {-2147483648.0, "-2147483648"},
    {1099511627776.0, "1099511627776"},
    {100000000000000000000.0, "100000000000000000000"},  // never with an exponent
};

TEST(NumberText, PrintsNumbersInTheirShortestForm) {
  for (const auto& [number, text] : kNumbers) EXPECT_EQ(number_text(number), text);
}

}  // namespace
}  // namespace quillvane
