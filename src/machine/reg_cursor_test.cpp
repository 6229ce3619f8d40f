#include "machine/reg_cursor.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace quillvane {
namespace {

TEST(RegCursor, CountsLinesWhateverEndsThem) {
  RegCursor cursor("a\r\nb\nc\rd");
  EXPECT_EQ(cursor.take_line(), "a");
  EXPECT_EQ(cursor.take_line(), "b");
  EXPECT_EQ(cursor.take_line(), "c");
  EXPECT_EQ(cursor.line(), 4U);
  EXPECT_EQ(cursor.take_line(), "d");
  EXPECT_FALSE(cursor.skip_to_content());
}

TEST(RegCursor, ContentIsWhatIsNeitherBlankNorAComment) {
  RegCursor cursor("\r\n \t\r\n; comment\r\n  [x]");
  EXPECT_TRUE(cursor.skip_to_content());
  EXPECT_EQ(cursor.peek(), '[');
  EXPECT_EQ(cursor.line(), 4U);
}

TEST(RegCursor, TakesAWordInAnyCaseOrNothing) {
  RegCursor cursor("HEX(2):");
  EXPECT_FALSE(cursor.take("hex:"));
  EXPECT_TRUE(cursor.take("hex("));
  EXPECT_EQ(cursor.peek(), '2');
  EXPECT_FALSE(cursor.take("2):and more"));
}

TEST(RegCursor, AQuotedTextKeepsItsLineEnds) {
  RegCursor cursor("\"a\\\\\\\"\r\n\\b\"=");
  std::string text;
  EXPECT_TRUE(cursor.take_quoted(text));
  EXPECT_EQ(text, "a\\\"\r\n\\b");
  EXPECT_EQ(cursor.peek(), '=');
  EXPECT_EQ(cursor.line(), 2U);
}

TEST(RegCursor, ANumberHasUpToEightDigits) {
  EXPECT_EQ(RegCursor("0").take_hex_number(), 0U);
  EXPECT_EQ(RegCursor("fFfFfFfF;").take_hex_number(), 0xFFFFFFFFU);
  EXPECT_EQ(RegCursor("123456789").take_hex_number(), std::nullopt);
  EXPECT_EQ(RegCursor("x").take_hex_number(), std::nullopt);
  EXPECT_EQ(RegCursor("").take_hex_number(), std::nullopt);
}

TEST(RegCursor, BytesGoOnBehindABackslash) {
  RegCursor cursor("1, ab,\\\r\n  ; between\r\n  ff ;\r\nnext");
  std::string bytes;
  EXPECT_TRUE(cursor.take_bytes(bytes));
  EXPECT_EQ(bytes, "\x01\xAB\xFF");
  EXPECT_TRUE(cursor.end_line());
  EXPECT_EQ(cursor.take_line(), "next");
}

TEST(RegCursor, TheFirstProblemIsKept) {
  RegCursor cursor("");
  EXPECT_FALSE(cursor.fail(3, "one"));
  EXPECT_FALSE(cursor.fail(4, "two"));
  EXPECT_EQ(cursor.problem(), "line 3: one");
}

TEST(RegCursor, BlanksAreTrimmedAtBothEnds) {
  EXPECT_EQ(trim_blanks(" \ta b\t "), "a b");
  EXPECT_EQ(trim_blanks(" \t"), "");
}

}  // namespace
}  // namespace quillvane
