#include "controls/caption_lines.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

int width_of(std::string_view text) { return static_cast<int>(text.size()); }

std::vector<CaptionLine> lines(std::string_view caption, int width) {
  return caption_lines(caption, width, width_of);
}

TEST(CaptionLines, WordsAreBrokenAtTheWidth) {
  EXPECT_EQ(lines("one two three", 7), (std::vector<CaptionLine>{{"one two", {}}, {"three", {}}}));
  EXPECT_EQ(lines("one two three", 13), (std::vector<CaptionLine>{{"one two three", {}}}));
  EXPECT_EQ(lines("one two", 1), (std::vector<CaptionLine>{{"one", {}}, {"two", {}}}));
}

TEST(CaptionLines, ALineFeedEndsALine) {
  EXPECT_EQ(lines("a\r\nb\nc", 9), (std::vector<CaptionLine>{{"a", {}}, {"b", {}}, {"c", {}}}));
}

TEST(CaptionLines, NothingHasNoLine) {
  EXPECT_TRUE(lines("", 9).empty());
  EXPECT_TRUE(lines("&", 9).empty());
}

TEST(CaptionLines, AMarkUnderlinesTheLetterBehindIt) {
  EXPECT_EQ(lines("&Start", 9), (std::vector<CaptionLine>{{"Start", 0}}));
  EXPECT_EQ(lines("all &now", 4), (std::vector<CaptionLine>{{"all", {}}, {"now", 0}}));
  EXPECT_EQ(lines("R&&D", 9), (std::vector<CaptionLine>{{"R&D", {}}}));
}

TEST(CaptionLines, TheAccessKeyIsThatLetterInLowerCase) {
  EXPECT_EQ(access_key_of("&Start"), "s");
  EXPECT_EQ(access_key_of("x &\xC3\x84pfel"), "\xC3\xA4");
  EXPECT_EQ(access_key_of("R&&D"), "");
  EXPECT_EQ(access_key_of("Start&"), "");
}

}  // namespace
}  // namespace quillvane
