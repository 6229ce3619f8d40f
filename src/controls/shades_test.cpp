#include "controls/shades.h"

#include <gtest/gtest.h>

#include "controls/bitmap_canvas.h"
#include "controls/button_look.h"

namespace quillvane {
namespace {

TEST(Shades, AShiftNeverWraps) {
  EXPECT_EQ(shifted(0xFFFFFF, 47), 0xFFFFFFU);
  EXPECT_EQ(shifted(0x000000, -64), 0x000000U);
  EXPECT_EQ(shifted(0xF01080, 47), 0xFF3FAFU);
  EXPECT_EQ(shifted(0xF01080, -64), 0xB00040U);
}

TEST(Shades, ASoftShiftGoesHalfAsFar) {
  EXPECT_EQ(shifted(0x808080, -64, {.soft = true}), 0x606060U);  // as -32
  EXPECT_EQ(shifted(0x808080, 31, {.soft = true}), 0x8F8F8FU);   // as 15
  EXPECT_EQ(shifted(0x808080, -25, {.soft = true}), 0x747474U);  // as -12
}

TEST(Shades, ScaledBlueMovesByItsOwnShare) {
  // 0xC0 * 48 / 192 = 0x30; 0x40 * 48 / 192 = 0x10; 0x80 * -72 / 192 = -0x30.
  EXPECT_EQ(shifted(0xC00000, 48, {.scale_blue = true}), 0xF03030U);
  EXPECT_EQ(shifted(0x400000, 48, {.scale_blue = true}), 0x503030U);
  EXPECT_EQ(shifted(0x808080, -72, {.scale_blue = true}), 0x503838U);
}

TEST(Shades, LighteningBlendsTowardsWhite) {
  // 0xD7: 215 * 79 / 255 + 176 = 66 + 176 = 242; 0x78: 120 * 79 / 255 + 176 = 37 + 176 = 213.
  EXPECT_EQ(lightened(0xD77800, 176), 0xF2D5B0U);
  EXPECT_EQ(lightened(0xFFFFFF, 176), 0xFFFFFFU);
  EXPECT_EQ(lightened(0x000000, 128), 0x808080U);
}

TEST(Palette, OfTheSystemTakesItsColours) {
  const ButtonPalette palette = make_palette({}, bitmap_colors());
  EXPECT_EQ(palette.face, 0xF0F0F0U);
  EXPECT_EQ(palette.face_over, 0xF0F0F0U);
  EXPECT_EQ(palette.shadow, 0xA0A0A0U);
  EXPECT_EQ(palette.light, 0xE3E3E3U);
  EXPECT_EQ(palette.highlight, 0xFFFFFFU);
  EXPECT_EQ(palette.dark, 0x696969U);
  EXPECT_EQ(palette.text, 0x000000U);
  EXPECT_EQ(palette.text_over, 0x000000U);
  EXPECT_EQ(palette.select, 0xD77800U);
  EXPECT_EQ(palette.select_soft, 0xF2D5B0U);
  EXPECT_EQ(palette.mask, 0xC0C0C0U);
  EXPECT_EQ(palette.tint, 0xFFFFFFU);
}

TEST(Palette, OfItsOwnFollowsFromTheFace) {
  const ButtonPalette palette = make_palette({.scheme = ColorScheme::kCustom,
                                              .back = 0x8090A0,
                                              .back_over = 0x102030,
                                              .fore = 0x111111,
                                              .fore_over = 0x222222,
                                              .mask = 0x80000000U | 13U},
                                             bitmap_colors());
  EXPECT_EQ(palette.face, 0x8090A0U);
  EXPECT_EQ(palette.face_over, 0x102030U);
  EXPECT_EQ(palette.shadow, 0x405060U);
  EXPECT_EQ(palette.light, 0x9FAFBFU);
  EXPECT_EQ(palette.highlight, 0xAFBFCFU);
  EXPECT_EQ(palette.dark, 0x000000U);
  EXPECT_EQ(palette.text, 0x111111U);
  EXPECT_EQ(palette.text_over, 0x222222U);
  EXPECT_EQ(palette.select, 0x001020U);
  EXPECT_EQ(palette.select_soft, 0x8090A0U);
  EXPECT_EQ(palette.mask, 0xD77800U);
  EXPECT_EQ(palette.tint, 0xB0C0D0U);
}

TEST(Palette, SoftEdgesAreHalfAsFarFromTheFace) {
  const ButtonPalette palette = make_palette(
      {.scheme = ColorScheme::kCustom, .back = 0x808080, .soft_bevel = true}, bitmap_colors());
  EXPECT_EQ(palette.shadow, 0x606060U);
  EXPECT_EQ(palette.light, 0x8F8F8FU);
  EXPECT_EQ(palette.highlight, 0x979797U);
  EXPECT_EQ(palette.dark, 0x202020U);
  EXPECT_EQ(palette.tint, 0x989898U);
}

TEST(Palette, OfFixedColoursAsksNobody) {
  const ButtonPalette palette =
      make_palette({.scheme = ColorScheme::kFixed, .back = 0x123456}, CanvasColors{});
  EXPECT_EQ(palette.face, 0xC0C0C0U);
  EXPECT_EQ(palette.face_over, 0xC0C0C0U);
  EXPECT_EQ(palette.shadow, 0x808080U);
  EXPECT_EQ(palette.light, 0xDFDFDFU);
  EXPECT_EQ(palette.highlight, 0xFFFFFFU);
  EXPECT_EQ(palette.dark, 0U);
  EXPECT_EQ(palette.select, 0x800000U);
  EXPECT_EQ(palette.select_soft, 13741485U);
  EXPECT_EQ(palette.tint, 0xF0F0F0U);
}

TEST(Palette, OfTheContainerTakesItsTwoColours) {
  CanvasColors around = bitmap_colors();
  around.container_back = 0x808080;
  around.container_text = 0x0000FF;
  const ButtonPalette palette = make_palette({.scheme = ColorScheme::kContainer}, around);
  EXPECT_EQ(palette.face, 0x808080U);
  EXPECT_EQ(palette.face_over, 0x808080U);
  EXPECT_EQ(palette.shadow, 0x404040U);
  EXPECT_EQ(palette.light, 0x9F9F9FU);
  EXPECT_EQ(palette.highlight, 0xAFAFAFU);
  EXPECT_EQ(palette.dark, 0U);
  EXPECT_EQ(palette.text, 0x0000FFU);
  EXPECT_EQ(palette.text_over, 0x0000FFU);
  EXPECT_EQ(palette.select, 0xD77800U);
  EXPECT_EQ(palette.select_soft, 0xF2D5B0U);
}

TEST(Palette, TheTintOfType3ScalesItsBlue) {
  const ButtonPalette palette = make_palette(
      {.scheme = ColorScheme::kCustom, .back = 0x408080, .scaled_tint = true}, bitmap_colors());
  EXPECT_EQ(palette.tint, 0x50B0B0U);
}

}  // namespace
}  // namespace quillvane
