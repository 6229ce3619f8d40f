// Pixels of each look. Without captions; the buttons are 40 wide and 20 high, unless said
// otherwise.
#include "controls/button_painter.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>

#include "controls/bitmap_canvas.h"

namespace quillvane {
namespace {

// The system's colours.
constexpr Color kFace = 0xF0F0F0;
constexpr Color kLight = 0xE3E3E3;
constexpr Color kHighlight = 0xFFFFFF;
constexpr Color kShadow = 0xA0A0A0;
constexpr Color kDark = 0x696969;
constexpr Color kSelect = 0xD77800;
constexpr Color kSelectSoft = 0xF2D5B0;

constexpr Size kSize = {40, 20};

Image painted(ButtonPaint button) {
  if (button.size == Size()) button.size = kSize;
  Image picture(button.size.width, button.size.height);
  BitmapCanvas canvas(picture, nullptr);
  paint_button(canvas, button);
  return picture;
}

// 0xBBGGRR; "clear" where nothing was painted.
std::string at(const Image& picture, int x, int y) {
  const std::uint32_t pixel = picture.at(x, y);
  if (pixel == 0) return "clear";
  std::ostringstream text;
  text << std::hex << std::uppercase << std::setw(6) << std::setfill('0') << (pixel & 0xFFFFFFU);
  return text.str();
}

std::string hex(Color color) {
  std::ostringstream text;
  text << std::hex << std::uppercase << std::setw(6) << std::setfill('0') << color;
  return text.str();
}

struct Expected {
  int x;
  int y;
  Color color;
};

void expect_pixels(const ButtonPaint& button, std::initializer_list<Expected> pixels) {
  const Image picture = painted(button);
  for (const Expected& pixel : pixels) {
    EXPECT_EQ(at(picture, pixel.x, pixel.y), hex(pixel.color))
        << "at " << pixel.x << ", " << pixel.y << " of type " << button.type;
  }
}

// The middles of the sides of a ring: top, left, bottom, right.
void expect_ring(const ButtonPaint& button, int inset, Color top, Color bottom) {
  expect_pixels(
      button,
      {{20, inset, top}, {inset, 10, top}, {20, 19 - inset, bottom}, {39 - inset, 10, bottom}});
}

ButtonPaint normal(int type) { return {.type = type}; }
ButtonPaint over(int type) { return {.type = type, .hovering = true}; }
ButtonPaint pressed(int type) { return {.type = type, .pressed = true, .hovering = true}; }
ButtonPaint disabled(int type) { return {.type = type, .enabled = false}; }
ButtonPaint focused(int type) { return {.type = type, .focused = true}; }

// Dots at every other pixel from the corner on, in the colour of the text.
void expect_focus(ButtonPaint button, const Rect& box) {
  button.focused = true;
  const Image picture = painted(button);
  ButtonPaint without = button;
  without.show_focus_rect = false;
  const Image plain = painted(without);
  for (int x = box.x; x < box.right(); ++x) {
    for (const int y : {box.y, box.bottom() - 1}) {
      const bool dot = (x - box.x + y - box.y) % 2 == 0;
      EXPECT_EQ(at(picture, x, y), dot ? hex(0) : at(plain, x, y)) << x << ", " << y;
    }
  }
  EXPECT_EQ(at(picture, box.x + 1, box.y + 1), at(plain, box.x + 1, box.y + 1));
}

void expect_same(const ButtonPaint& one, const ButtonPaint& other) {
  EXPECT_EQ(painted(one), painted(other)) << one.type;
}

TEST(ButtonPainter, Type1HasABevelInsideOfItsFrame) {
  expect_ring(normal(1), 0, kDark, kDark);
  expect_ring(normal(1), 1, kHighlight, kShadow);
  expect_ring(normal(1), 2, kHighlight, kShadow);
  expect_pixels(normal(1), {{20, 10, kFace}});
  expect_ring(pressed(1), 0, kDark, kDark);
  expect_ring(pressed(1), 1, kShadow, kHighlight);
  expect_ring(pressed(1), 2, kShadow, kHighlight);
  expect_ring(disabled(1), 0, kShadow, kShadow);
  expect_ring(disabled(1), 1, kHighlight, kShadow);
  expect_ring(disabled(1), 2, kHighlight, kShadow);
  EXPECT_EQ(at(painted(normal(1)), 0, 0), "clear");
  expect_focus(normal(1), {4, 4, 32, 12});
}

TEST(ButtonPainter, Type2HasTwoRings) {
  expect_ring(normal(2), 0, kHighlight, kDark);
  expect_ring(normal(2), 1, kLight, kShadow);
  expect_same(over(2), normal(2));
  expect_ring(disabled(2), 0, kHighlight, kDark);
  expect_ring(disabled(2), 1, kLight, kShadow);
  expect_ring(pressed(2), 0, kDark, kHighlight);
  expect_ring(pressed(2), 1, kShadow, kLight);
  // The lower right side has the corners that two sides share.
  expect_pixels(normal(2), {{0, 0, kHighlight}, {39, 0, kDark}, {0, 19, kDark}, {39, 19, kDark}});
}

TEST(ButtonPainter, Type2IsFramedWhenItStandsOut) {
  ButtonPaint by_default = normal(2);
  by_default.is_default = true;
  for (const ButtonPaint& button : {focused(2), by_default}) {
    expect_ring(button, 0, kDark, kDark);
    expect_ring(button, 1, kHighlight, kDark);
    expect_ring(button, 2, kLight, kShadow);
  }
  expect_focus(normal(2), {4, 4, 32, 12});
  ButtonPaint both = pressed(2);
  both.focused = both.is_default = true;
  expect_ring(both, 0, kDark, kDark);
  expect_ring(both, 1, kShadow, kShadow);
  expect_ring(both, 2, kFace, kFace);
}

TEST(ButtonPainter, Type10IsDrawnAsType2) {
  for (ButtonPaint button : {normal(2), over(2), pressed(2), disabled(2)}) {
    ButtonPaint other = button;
    other.type = 10;
    expect_same(other, button);
  }
  expect_focus(normal(10), {3, 3, 34, 14});
}

// On a face of 0x808080 the tint is B0B0A0: the blue moves by 128 * 48 / 192 = 32.
ButtonPaint round_button(ButtonPaint button) {
  button.colors = {.scheme = ColorScheme::kCustom, .back = 0x808080, .back_over = 0x808080};
  return button;
}

TEST(ButtonPainter, Type3IsAGradientOfItsTint) {
  // Row i is darker by i * 25 / 20.
  expect_pixels(round_button(normal(3)), {{20, 3, 0x9DADAD},     // 3
                                          {20, 10, 0x94A4A4},    // 12
                                          {20, 16, 0x8C9C9C}});  // 20
  // The sum of the steps is 25 at any height: here 100 rows, of which row 96 is darker by 24.
  ButtonPaint tall = round_button(normal(3));
  tall.size = {40, 100};
  expect_pixels(tall, {{20, 4, 0x9FAFAF}, {20, 50, 0x94A4A4}, {20, 96, 0x889898}});
}

TEST(ButtonPainter, Type3HasLinesInsideOfItsFrame) {
  const ButtonPaint button = round_button(normal(3));
  expect_ring(button, 0, 0x733C00, 0x733C00);
  expect_pixels(button, {{20, 18, 0x708080},  // -48
                         {20, 17, 0x809090},  // -32
                         {38, 10, 0x7C8C8C},  // -36
                         {37, 10, 0x889898},  // -24
                         {20, 1, 0xB0C0C0},   // +16
                         {20, 2, 0xAABABA},   // +10
                         {1, 10, 0x9BABAB},   // -5
                         {2, 10, 0x96A6A6},   // -10
                         {1, 1, 0x7B4D10},
                         {1, 18, 0x7B4D10},
                         {38, 1, 0x7B4D10},
                         {38, 18, 0x7B4D10}});
}

TEST(ButtonPainter, Type3Glows) {
  ButtonPaint by_default = normal(3);
  by_default.is_default = true;
  for (const ButtonPaint& button : {focused(3), by_default}) {
    expect_pixels(button, {{1, 10, 15183500},
                           {38, 10, 15183500},
                           {20, 17, 15183500},
                           {20, 18, 15696491},
                           {20, 1, 16771022},
                           {20, 2, 16242621},
                           {2, 10, 15782325},
                           {37, 10, 15782325},
                           {1, 1, 0x7B4D10}});
  }
  ButtonPaint both = over(3);
  both.focused = true;
  for (const ButtonPaint& button : {over(3), both}) {
    expect_pixels(button, {{1, 10, 3257087},
                           {38, 10, 3257087},
                           {20, 17, 3257087},
                           {20, 18, 38631},
                           {20, 1, 13562879},
                           {20, 2, 9231359},
                           {2, 10, 7064575},
                           {37, 10, 7064575},
                           {38, 18, 0x7B4D10}});
  }
  ButtonPaint without = focused(3);
  without.show_focus_rect = false;
  expect_same(focused(3), without);
}

TEST(ButtonPainter, Type3IsDarkAbovePressed) {
  // The base is 809090; row 20 - i is darker by i * 25 / 20.
  const ButtonPaint button = round_button(pressed(3));
  expect_ring(button, 0, 7552000, 7552000);
  expect_pixels(button, {{20, 10, 0x748484},  // i is 10: 12
                         {20, 3, 0x6B7B7B},   // i is 17: 21
                         {20, 18, 0x90A0A0},  // +16
                         {20, 17, 0x8A9A9A},  // +10
                         {38, 10, 0x859595},  // +5
                         {20, 1, 0x607070},   // -32
                         {20, 2, 0x687878},   // -24
                         {1, 10, 0x607070},   // -32
                         {2, 10, 0x6A7A7A},   // -22
                         {1, 1, 8080656}});
}

TEST(ButtonPainter, Type3IsFlatWhenDisabled) {
  // Blue is 160: 160 * -72 / 192 = -60.
  const ButtonPaint button = round_button(disabled(3));
  expect_ring(button, 0, 0x646868, 0x646868);
  expect_ring(button, 1, 0xA0B0B0, 0xA0B0B0);
  expect_pixels(button, {{20, 10, 0xA0B0B0}, {1, 1, 0x586868}, {38, 18, 0x586868}});
}

TEST(ButtonPainter, Type4HasAFrameWithCutCorners) {
  expect_ring(normal(4), 0, kDark, kDark);
  expect_ring(normal(4), 1, kFace, kShadow);
  expect_pixels(normal(4), {{1, 1, kDark}, {38, 1, kDark}, {1, 18, kDark}, {38, 18, kDark}});
  expect_pixels(normal(4), {{20, 2, kHighlight}, {3, 3, kHighlight}, {36, 16, kHighlight}});
  expect_ring(disabled(4), 0, kShadow, kShadow);
  expect_pixels(disabled(4), {{1, 1, kDark}, {20, 2, kHighlight}});
  // The shadow less 16, in a dark ring.
  expect_pixels(pressed(4), {{20, 10, 0x909090}, {20, 1, 0x808080}, {20, 18, 0xD0D0D0}});
}

TEST(ButtonPainter, Type5IsFlatInAFrameThatIsOnePixelShort) {
  for (const ButtonPaint& button : {normal(5), over(5)}) {
    expect_pixels(button, {{20, 0, kDark},
                           {0, 10, kDark},
                           {38, 10, kDark},
                           {20, 18, kDark},
                           {39, 10, kFace},
                           {20, 19, kFace},
                           {1, 18, kDark},
                           {38, 1, kDark},
                           {20, 10, kFace}});
  }
  expect_ring(disabled(5), 0, kShadow, kShadow);
  expect_pixels(disabled(5), {{20, 10, kFace}});
  // The shadow plus 16, in one less 26; lit to the right and below.
  expect_pixels(pressed(5), {{20, 10, 0xB0B0B0},
                             {20, 0, 0x868686},
                             {0, 10, 0x868686},
                             {38, 10, 0x868686},
                             {20, 18, 0x868686},
                             {39, 10, kHighlight},
                             {20, 19, kHighlight}});
}

TEST(ButtonPainter, Type5IsFilledWithTheColourOfTheMouseAlways) {
  ButtonPaint button = normal(5);
  button.colors = {.scheme = ColorScheme::kCustom, .back = 0x808080, .back_over = 0x102030};
  expect_pixels(button, {{20, 10, 0x102030}, {39, 10, 0x102030}});
}

TEST(ButtonPainter, Type5FramesItsCaptionWhenItHasTheFocus) {
  // The caption is empty, so its place is the middle, (20, 10), without any size.
  for (ButtonPaint button : {focused(5), pressed(5)}) {
    button.focused = true;
    expect_pixels(button, {{18, 9, 0xCC9999}, {21, 9, 0xCC9999}, {18, 10, 0xCC9999}});
    button.show_focus_rect = false;
    EXPECT_NE(at(painted(button), 18, 9), hex(0xCC9999));
  }
}

TEST(ButtonPainter, Type6IsARingOfShadowAndLight) {
  // The light of E3E3E3 plus 8, and plus 16.
  for (const ButtonPaint& button : {normal(6), over(6), disabled(6)}) {
    expect_ring(button, 0, kShadow, 0xEBEBEB);
    expect_ring(button, 1, kFace, kFace);
  }
  expect_ring(pressed(6), 0, kShadow, 0xEBEBEB);
  expect_ring(pressed(6), 1, kShadow, 0xF3F3F3);
  expect_focus(normal(6), {4, 4, 32, 12});
  expect_focus(pressed(6), {4, 4, 32, 12});
}

TEST(ButtonPainter, Types7And8HaveOneRing) {
  expect_ring(normal(7), 0, kHighlight, kShadow);
  expect_ring(normal(7), 1, kFace, kFace);
  expect_ring(normal(8), 0, kFace, kFace);
  expect_ring(over(8), 0, kHighlight, kShadow);
  for (const int type : {7, 8}) {
    expect_ring(pressed(type), 0, kShadow, kHighlight);
    expect_ring(pressed(type), 1, kFace, kFace);
    expect_ring(disabled(type), 0, kHighlight, kShadow);
    expect_focus(normal(type), {3, 3, 34, 14});
  }
}

TEST(ButtonPainter, Type9IsFilledUnderTheMouse) {
  expect_ring(normal(9), 0, kFace, kFace);
  expect_ring(over(9), 0, kSelect, kSelect);
  expect_pixels(over(9), {{20, 10, kSelectSoft}, {38, 18, kSelectSoft}});
  // The soft colour less 32.
  expect_pixels(pressed(9), {{20, 10, 0xD2B590}, {0, 10, kSelect}, {20, 19, kSelect}});
  // One that stays down lets the selection shine through: 215 * 127 / 255 + 128 = 235 and 187.
  ButtonPaint checked = pressed(9);
  checked.hovering = false;
  expect_pixels(checked, {{20, 10, 0xEBBB80}, {0, 10, kSelect}});
  expect_same(disabled(9), normal(9));
  expect_focus(normal(9), {3, 3, 34, 14});
  expect_focus(pressed(9), {3, 3, 34, 14});
}

TEST(ButtonPainter, Type11ShowsWhatLiesUnderIt) {
  expect_ring(normal(11), 0, kFace, kFace);
  const Image ground(40, 20, 0xFF123456);
  for (ButtonPaint button : {normal(11), over(11), pressed(11), disabled(11)}) {
    button.background = &ground;
    expect_pixels(button, {{0, 0, 0x123456}, {20, 10, 0x123456}, {39, 19, 0x123456}});
  }
  expect_focus(normal(11), {3, 3, 34, 14});
}

TEST(ButtonPainter, Type12RisesUnderTheMouse) {
  expect_ring(normal(12), 0, kFace, kFace);
  expect_ring(over(12), 0, kHighlight, kDark);
  expect_ring(over(12), 1, kLight, kShadow);
  expect_ring(pressed(12), 0, kDark, kHighlight);
  expect_ring(pressed(12), 1, kShadow, kLight);
  expect_ring(disabled(12), 0, kHighlight, kShadow);
  expect_ring(disabled(12), 1, kFace, kFace);
  expect_focus(normal(12), {3, 3, 34, 14});
}

TEST(ButtonPainter, Type13IsAnEllipseWithAWidePen) {
  expect_ring(normal(13), 0, kDark, kDark);
  expect_ring(normal(13), 1, kDark, kDark);
  expect_ring(normal(13), 2, kFace, kFace);
  expect_pixels(over(13), {{20, 10, kShadow}, {0, 10, kDark}});
  expect_pixels(pressed(13), {{20, 10, 0xD0D0D0}, {0, 10, kDark}});  // the face less 32
  expect_ring(disabled(13), 0, kHighlight, kShadow);
  for (const ButtonPaint& button : {normal(13), over(13), pressed(13), disabled(13)}) {
    for (const int x : {0, 39}) {
      for (const int y : {0, 19}) EXPECT_EQ(at(painted(button), x, y), "clear");
    }
  }
}

TEST(ButtonPainter, Type14IsAGradientFromWhite) {
  // Row i - 1 is darker by i * 25 / 20.
  expect_ring(normal(14), 0, kShadow, kShadow);
  expect_pixels(normal(14), {{20, 1, 0xFDFDFD}, {20, 9, 0xF3F3F3}, {20, 18, kShadow}});
  expect_pixels(over(14), {{20, 9, kLight}, {0, 10, kShadow}});
  expect_pixels(disabled(14), {{20, 9, 0xF3F3F3}, {0, 10, 0xFFFFFF}, {20, 0, 0xFFFFFF}});
  // The face less 9, in the shadow less 48; lit to the right and below.
  expect_pixels(pressed(14), {{20, 10, 0xE7E7E7},
                              {20, 0, 0x707070},
                              {0, 10, 0x707070},
                              {20, 19, 0x707070},
                              {20, 18, kHighlight},
                              {38, 10, kHighlight}});
}

TEST(ButtonPainter, OnlySomeTypesShowADottedFocus) {
  for (const int type : {4, 13, 14}) {
    ButtonPaint without = focused(type);
    without.show_focus_rect = false;
    expect_same(focused(type), without);
  }
  for (const int type : {1, 3, 4, 7, 8, 11, 12, 13, 14}) {
    ButtonPaint button = pressed(type);
    button.focused = true;
    expect_same(button, pressed(type));
  }
}

TEST(ButtonPainter, TheColourUnderTheMouseBringsItsOwnEdges) {
  ButtonPaint button = over(7);
  button.colors = {.scheme = ColorScheme::kCustom, .back = 0x808080, .back_over = 0x909090};
  // 47 more and 64 less than 0x909090.
  expect_ring(button, 0, 0xBFBFBF, 0x505050);
  expect_pixels(button, {{20, 10, 0x909090}});
  button.enabled = false;
  expect_ring(button, 0, 0xAFAFAF, 0x404040);
  expect_pixels(button, {{20, 10, 0x808080}});
}

TEST(ButtonPainter, WithoutRoomNothingIsPaintedOutside) {
  for (int type = kFirstButtonType; type <= kLastButtonType; ++type) {
    for (const Size size : {Size{1, 1}, Size{2, 1}, Size{1, 9}, Size{3, 3}, Size{5, 2}}) {
      for (ButtonPaint button : {normal(type), over(type), pressed(type), disabled(type)}) {
        button.size = size;
        button.focused = true;
        const Image picture = painted(button);
        const Region shape = button_region(type, size);
        for (int y = 0; y < size.height; ++y) {
          for (int x = 0; x < size.width; ++x) {
            EXPECT_EQ(picture.at(x, y) != 0, shape.contains({x, y})) << type;
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace quillvane
