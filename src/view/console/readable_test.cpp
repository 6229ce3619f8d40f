#include "view/console/readable.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

TEST(Readable, SizesHaveUnitsAndBytesWhereThereIsNone) {
  EXPECT_EQ(readable_size(0), "0 B");
  EXPECT_EQ(readable_size(1536), "1.5 KB");
  EXPECT_EQ(readable_size(-5), "-5 B");
  EXPECT_EQ(readable_size(1099511627776.0), "1099511627776 B");
}

struct PrintableCase {
  std::string_view text;
  std::string_view result;
};

using namespace std::string_view_literals;

TEST(Readable, WhatUpsetsATerminalIsWrittenOut) {
  const PrintableCase cases[] = {
      {"C:\\Temp\\a b<c>.tmp", "C:\\Temp\\a b<c>.tmp"},
      {"\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"},
      {"a\x1b[1m\nb\tc", "a<1B>[1m<0A>b<09>c"},
      {"\0\x1f \x7f"sv, "<00><1F> <7F>"},
      // The second set of controls; what follows it in Latin-1 is no control.
      {"\xC2\x80\xC2\x9B\xC2\x9F\xC2\xA0", "<U+0080><U+009B><U+009F>\xC2\xA0"},
      // Marks of direction: their first and last, and their neighbours.
      {"\xD8\x9C", "<U+061C>"},
      {"\xE2\x80\x8D\xE2\x80\x8E\xE2\x80\x8F\xE2\x80\x90",
       "\xE2\x80\x8D<U+200E><U+200F>\xE2\x80\x90"},
      {"exe.\xE2\x80\xAEpmt\xE2\x80\xAA\xE2\x80\xAF", "exe.<U+202E>pmt<U+202A>\xE2\x80\xAF"},
      {"\xE2\x81\xA5\xE2\x81\xA6\xE2\x81\xA9\xE2\x81\xAA",
       "\xE2\x81\xA5<U+2066><U+2069>\xE2\x81\xAA"},
      // Bytes that are no UTF-8, an overlong escape among them.
      {"a\x9B\xFFz", "a<9B><FF>z"},
      {"\xC0\x9B", "<C0><9B>"},
      {"\xE2\x80", "<E2><80>"},
  };
  for (const PrintableCase& c : cases) EXPECT_EQ(printable(c.text), c.result);
}

TEST(Readable, OnlyATerminalIsSparedTheRawName) {
  EXPECT_EQ(shown("a\nb\xFF", true), "a<0A>b<FF>");
  EXPECT_EQ(shown("a\nb\xFF", false), "a\nb\xFF");
}

TEST(Readable, ColumnsAreCountedByCodePoint) {
  EXPECT_EQ(columns_of(""), 0U);
  EXPECT_EQ(columns_of("abc"), 3U);
  EXPECT_EQ(columns_of("\xC3\xA4\xE2\x82\xAC"), 2U);
  EXPECT_EQ(columns_of("a\xFF"), 2U);
}

TEST(Readable, TextIsFilledUpToAWidthAndNeverCut) {
  EXPECT_EQ(padded("\xC3\xA4", 3), "\xC3\xA4  ");
  EXPECT_EQ(right_aligned("12", 4), "  12");
  EXPECT_EQ(padded("abcd", 3), "abcd");
  EXPECT_EQ(right_aligned("abcd", 3), "abcd");
}

struct ShortenedCase {
  std::string_view text;
  std::size_t columns;
  std::string_view result;
};

TEST(Readable, LongTextLosesItsMiddle) {
  const ShortenedCase cases[] = {
      {"C:\\Temp\\a.tmp", 13, "C:\\Temp\\a.tmp"},
      {"C:\\Temp\\a.tmp", 12, "C:\\T...a.tmp"},
      {"C:\\Temp\\a.tmp", 5, "C...p"},
      {"C:\\Temp\\a.tmp", 4, "...p"},
      {"C:\\Temp\\a.tmp", 3, "..."},
      {"C:\\Temp\\a.tmp", 2, ".."},
      {"C:\\Temp\\a.tmp", 0, ""},
      // Never in the middle of a letter.
      {"\xC3\xA4\xC3\xB6\xC3\xBC\xC3\xA4\xC3\xB6\xC3\xBC", 5, "\xC3\xA4...\xC3\xBC"},
  };
  for (const ShortenedCase& c : cases) {
    EXPECT_EQ(shortened(c.text, c.columns), c.result) << c.text << " in " << c.columns;
  }
}

}  // namespace
}  // namespace quillvane
