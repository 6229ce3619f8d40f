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

TEST(Readable, ControlCharactersAreShownAsQuestionMarks) {
  EXPECT_EQ(printable("a\x1b[1m\nb\x7f\xC3\xA4"), "a?[1m?b?\xC3\xA4");
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
