#include "view/win32/look/theme.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

constexpr Color kWhite = 0xFFFFFF;
constexpr Color kSuiteBlue = 10118205;  // red 61, green 100, blue 154
constexpr Color kDarkRed = 192;

// The colours of a Windows in high contrast, white on black.
constexpr SystemColors kBlackAndWhite = {.window = 0,
                                         .window_text = kWhite,
                                         .face = 0x010101,
                                         .face_text = 0xFEFEFE,
                                         .gray_text = 0x3FF23F,
                                         .highlight = 0xFFEB1A,
                                         .highlight_text = 0x020202,
                                         .hot_light = 0x00FFFF};

TEST(Theme, TextOnAColourIsBlackOrWhiteWhicheverIsReadBetter) {
  EXPECT_EQ(readable_on(0), kWhite);
  EXPECT_EQ(readable_on(kWhite), 0U);
  EXPECT_EQ(readable_on(kSuiteBlue), kWhite);
  EXPECT_EQ(readable_on(0x00FFFF), 0U);      // yellow
  EXPECT_EQ(readable_on(0xFF0000), kWhite);  // blue
}

TEST(Theme, MixingGoesFromOneColourToTheOther) {
  EXPECT_EQ(mixed(0x102030, kWhite, 0), 0x102030U);
  EXPECT_EQ(mixed(0, 0x0080FF, 128), 0x00407FU);
}

TEST(Theme, TheTitleBarHasTheSuitesColour) {
  const Theme theme = make_theme(kSuiteBlue, {}, /*high_contrast=*/false);

  EXPECT_EQ(theme.title, kSuiteBlue);
  EXPECT_EQ(theme.title_text, kWhite);
  EXPECT_EQ(theme.main_button, kSuiteBlue);
}

TEST(Theme, HighContrastKnowsTheSystemsColoursAlone) {
  const Theme theme = make_theme(kSuiteBlue, kBlackAndWhite, /*high_contrast=*/true);

  EXPECT_EQ(theme.title, kBlackAndWhite.highlight);
  EXPECT_EQ(theme.title_text, kBlackAndWhite.highlight_text);
  EXPECT_EQ(theme.page, kBlackAndWhite.face);
  EXPECT_EQ(theme.text, kBlackAndWhite.face_text);
  EXPECT_EQ(theme.list, kBlackAndWhite.window);
  EXPECT_EQ(theme.list_text, kBlackAndWhite.window_text);
  EXPECT_EQ(theme.main_button, kBlackAndWhite.face);
  EXPECT_EQ(theme.disabled_text, kBlackAndWhite.gray_text);
  EXPECT_EQ(theme.box_edge, kBlackAndWhite.window_text);
  EXPECT_EQ(theme.link, kBlackAndWhite.hot_light);
}

TEST(Theme, ContrastIsAHighestOfTwentyOneToOne) {
  EXPECT_NEAR(contrast(0, kWhite), 21, 0.001);
  EXPECT_NEAR(contrast(kWhite, 0), 21, 0.001);
  EXPECT_NEAR(contrast(kSuiteBlue, kSuiteBlue), 1, 0.001);
}

TEST(Theme, LinksCanBeReadWhateverTheSuitesColour) {
  for (const Color suite : {kSuiteBlue, Color{0x00FFFF}, kWhite, Color{0}}) {
    const Theme theme = make_theme(suite, {}, false);
    EXPECT_GE(contrast(theme.link, theme.page), 4.5) << suite;
  }
  EXPECT_EQ(make_theme(kSuiteBlue, {}, false).link, kSuiteBlue);
}

TEST(Theme, ANodeKeepsItsColourExceptInHighContrast) {
  const Theme plain = make_theme(kSuiteBlue, {.window = kWhite, .window_text = 0x333333}, false);
  EXPECT_EQ(node_text_color(plain, kDarkRed), kDarkRed);
  EXPECT_EQ(node_text_color(plain, 0), 0x333333U);

  const Theme contrast = make_theme(kSuiteBlue, kBlackAndWhite, true);
  EXPECT_EQ(node_text_color(contrast, kDarkRed), kWhite);
}

}  // namespace
}  // namespace quillvane
