// Code pages: the same text for the same bytes on every system.
#include <cstdint>
#include <string>

#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

class CodePageContract : public ContractTest {
 protected:
  [[nodiscard]] const CodePage& page(int number) const {
    const CodePage* found = platform.system.code_page(number);
    EXPECT_NE(found, nullptr) << number;
    static const CodePage kNone;
    return found == nullptr ? kNone : *found;
  }
};

TEST_F(CodePageContract, LettersAreThoseOfTheCodePage) {
  const struct {
    int page;
    std::string bytes;
    std::string text;
  } cases[] = {
      {874, "\xA1\xD2", "\u0E01\u0E32"},                    // Thai: ko kai, sara aa
      {932, "\x93\xFA\x96\x7B\xB1", "\u65E5\u672C\uFF71"},  // Japan, a katakana of half width
      {936, "\xD6\xD0\xB9\xFA\x80", "\u4E2D\u56FD\u20AC"},  // China, the euro sign
      {949, "\xC7\xD1\xB1\xDB", "\uD55C\uAE00"},            // Hangul
      {950, "\xA4\xA4\xA4\xE5", "\u4E2D\u6587"},            // Chinese
      {1250,
       "\xA3\xF3"
       "d\x9F",
       "\u0141\u00F3d\u017A"},                       // Lodz
      {1251, "\xCC\xE8\xF0", "\u041C\u0438\u0440"},  // Mir
      {1252,
       "Gr\xF6\xDF"
       "e \x80",
       "Gr\u00F6\u00DFe \u20AC"},
      {1253, "\xC5\xEB", "\u0395\u03BB"},            // Greek: epsilon, lambda
      {1254, "\xDE\xFD", "\u015E\u0131"},            // Turkish: s with cedilla, dotless i
      {1255, "\xF9\xEC\xCA", "\u05E9\u05DC\u05BA"},  // Hebrew: shin, lamed, a point
      {1256, "\xC7\xE1", "\u0627\u0644"},            // Arabic: alef, lam
      {1257, "\xE0\xF0", "\u0105\u0161"},            // Lithuanian: a with ogonek, s with caron
      {1258, "\xD0\xE3\xCC", "\u0110\u0103\u0300"},  // Vietnamese: d with stroke, a, a tone
      {65001, "Gr\u00F6\u00DFe\xFF", "Gr\u00F6\u00DFe\xFF"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(page(c.page).decode(c.bytes), c.text) << c.page;
    EXPECT_EQ(page(c.page).encode(c.text), c.bytes) << c.page;
  }
}

// A character that looks like another is another.
TEST_F(CodePageContract, WhatThePageDoesNotHaveIsNotWrittenAsSomethingLikeIt) {
  EXPECT_EQ(page(1252).encode("\u0151"), std::nullopt);     // o with double acute, like o
  EXPECT_EQ(page(1252).encode("\u2215"), std::nullopt);     // division slash, like "/"
  EXPECT_EQ(page(1252).encode("\uFF3C"), std::nullopt);     // wide backslash
  EXPECT_EQ(page(932).encode("\u00A5"), std::nullopt);      // yen sign, like the backslash there
  EXPECT_EQ(page(1258).encode("\u1EA1"), std::nullopt);     // only as letter and tone
  EXPECT_EQ(page(936).encode("\U00020000"), std::nullopt);  // beyond 16 bits
  EXPECT_EQ(page(1251).encode("a\u00E4"), std::nullopt);
}

std::uint64_t fnv1a(std::uint64_t hash, const std::string& text) {
  for (const char byte : text) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
  }
  return hash;
}

// The digests are those of Windows' own tables (c_932.nls and the like) under the rules of
// CodePage: each byte from 0x80 on, then each two bytes of which the first is from 0x80 on, every
// text with a line feed behind it.
TEST_F(CodePageContract, EveryByteAndPairMeansTheSameOnEverySystem) {
  const struct {
    int page;
    std::uint64_t digest;
  } cases[] = {
      {874, 0x02C44E07C5A98DF9U},  {932, 0xBF63868EC38D64F2U},  {936, 0x364E01537809EEE0U},
      {949, 0xE159647F15AB50D6U},  {950, 0x249A5DF4A3C7ECBBU},  {1250, 0x579224C01E181855U},
      {1251, 0x29CFE5C887B1CAEDU}, {1252, 0xE023FD34AE058F2AU}, {1253, 0x5542ACFEF020B083U},
      {1254, 0x4F99F8F1D7D6AA60U}, {1255, 0xF43C42C21F592F83U}, {1256, 0xF1B637D0239EB64FU},
      {1257, 0x5330C73F263FB364U}, {1258, 0xFC01B1D4CEF66FF7U},
  };
  for (const auto& c : cases) {
    std::uint64_t digest = 0xCBF29CE484222325U;
    const auto take = [&](const std::string& lines) {
      const std::string text = page(c.page).decode(lines);
      digest = fnv1a(digest, text);
      // Nothing is lost on the way back: other bytes at most, for the same text.
      const auto again = page(c.page).encode(text);
      EXPECT_TRUE(again && page(c.page).decode(*again) == text) << c.page << ": " << lines;
    };
    for (int byte = 0x80; byte <= 0xFF; ++byte) take({static_cast<char>(byte), '\n'});
    for (int first = 0x80; first <= 0xFF; ++first) {
      std::string lines;
      for (int second = 0; second <= 0xFF; ++second) {
        lines += {static_cast<char>(first), static_cast<char>(second), '\n'};
      }
      take(lines);
    }
    EXPECT_EQ(digest, c.digest) << c.page;
  }
}

TEST_F(CodePageContract, AByteOfASingleBytePageComesBackAsItself) {
  for (const int number : {874, 1250, 1251, 1252, 1253, 1254, 1255, 1256, 1257, 1258}) {
    std::string all;
    for (int byte = 0; byte <= 0xFF; ++byte) all.push_back(static_cast<char>(byte));
    EXPECT_EQ(page(number).encode(page(number).decode(all)), all) << number;
  }
}

TEST_F(CodePageContract, PagesThatNoSystemHasAsItsOwnAreNotKnown) {
  for (const int number : {0, -1, 37, 437, 850, 1200, 50220, 65000}) {
    EXPECT_EQ(platform.system.code_page(number), nullptr) << number;
  }
}

}  // namespace
}  // namespace quillvane
