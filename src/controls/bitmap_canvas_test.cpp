#include "controls/bitmap_canvas.h"

#include <gtest/gtest.h>

#include "controls/button_painter.h"
#include "tests/support/block_raster.h"

namespace quillvane {
namespace {

constexpr std::uint32_t kRed = 0xFF0000FF;

struct Stage {
  explicit Stage(int width = 8, int height = 6) : picture(width, height) {}

  // Each painted pixel a #.
  [[nodiscard]] std::string drawn() const {
    std::string text;
    for (int y = 0; y < picture.height; ++y) {
      for (int x = 0; x < picture.width; ++x) text += picture.at(x, y) != 0 ? '#' : '.';
      text += '\n';
    }
    return text;
  }

  Image picture;
  BlockRaster raster;
  BitmapCanvas canvas{picture, &raster};
};

TEST(BitmapCanvas, ShapesAreCutToThePicture) {
  Stage stage(4, 3);
  stage.canvas.fill({-5, 1, 7, 90}, 0x0000FF);
  EXPECT_EQ(stage.drawn(), "....\n##..\n##..\n");
  EXPECT_EQ(stage.picture.at(0, 1), kRed);
}

TEST(BitmapCanvas, ShapesAreCutToTheClip) {
  Stage stage(4, 3);
  Region shape = Region::rectangle({4, 3});
  shape.take_out({0, 0, 2, 1});
  stage.canvas.clip(shape);
  stage.canvas.fill({0, 0, 4, 3}, 0x0000FF);
  EXPECT_EQ(stage.drawn(), "..##\n####\n####\n");
}

TEST(BitmapCanvas, AnOriginMovesAllThatFollows) {
  Stage stage(4, 3);
  stage.canvas.set_origin({1, 1});
  stage.canvas.fill({0, 0, 2, 9}, 0x0000FF);
  stage.canvas.clip(Region::rectangle({1, 1}));
  stage.canvas.fill({0, 0, 4, 3}, 0x00FF00);
  EXPECT_EQ(stage.drawn(), "....\n.##.\n.##.\n");
  EXPECT_EQ(stage.picture.at(1, 1), 0xFF00FF00U);
  EXPECT_EQ(stage.picture.at(2, 1), kRed);
}

TEST(BitmapCanvas, FramesAndLinesAreOnePixelWide) {
  Stage stage;
  stage.canvas.frame({1, 1, 5, 4}, 1);
  EXPECT_EQ(stage.drawn(), "........\n.#####..\n.#...#..\n.#...#..\n.#####..\n........\n");
  Stage lines;
  lines.canvas.line({6, 1}, {2, 1}, 1);
  lines.canvas.line({3, 3}, {3, 5}, 1);
  EXPECT_EQ(lines.drawn(), "........\n..#####.\n........\n...#....\n...#....\n...#....\n");
}

TEST(BitmapCanvas, ADottedFrameHasEveryOtherPixel) {
  Stage stage;
  stage.canvas.dotted_frame({1, 1, 5, 4}, 1);
  EXPECT_EQ(stage.drawn(), "........\n.#.#.#..\n........\n.#...#..\n..#.#...\n........\n");
}

TEST(BitmapCanvas, APictureIsStretchedAndLetsThrough) {
  Stage stage(4, 2);
  stage.canvas.fill({0, 0, 4, 2}, 0x000000);
  Image picture(2, 1);
  picture.at(0, 0) = 0xFFFFFFFF;
  picture.at(1, 0) = 0x80FFFFFF;  // half of it
  stage.canvas.picture({0, 0, 4, 2}, picture);
  EXPECT_EQ(stage.picture.at(1, 1), 0xFFFFFFFFU);
  EXPECT_EQ(stage.picture.at(2, 0), 0xFF808080U);
}

TEST(BitmapCanvas, ACopyReplaces) {
  Stage stage(4, 2);
  stage.canvas.fill({0, 0, 4, 2}, 0xFFFFFF);
  stage.canvas.copy({3, 1}, Image(2, 2, 0x000000FF));
  EXPECT_EQ(stage.picture.at(3, 1), kRed);
  EXPECT_EQ(stage.picture.at(2, 1), 0xFFFFFFFFU);
}

TEST(BitmapCanvas, TextStandsInTheMiddleOfItsArea) {
  Stage stage(14, 14);
  stage.canvas.text({1, 2, 12, 10}, "&ab", {}, 0x0000FF);
  // Two letters of 6 from column 1 on, covered in rows 4 to 9; the first is underlined in row 11.
  EXPECT_EQ(stage.drawn(),
            "..............\n..............\n..............\n..............\n"
            ".#####.#####..\n.#####.#####..\n.#####.#####..\n"
            ".#####.#####..\n.#####.#####..\n.#####.#####..\n"
            "..............\n.######.......\n..............\n..............\n");
}

TEST(BitmapCanvas, ACaptionIsMeasuredInItsLines) {
  Stage stage;
  EXPECT_EQ(stage.canvas.measure("one two", {}, 42), (Size{42, 10}));
  EXPECT_EQ(stage.canvas.measure("one two", {}, 41), (Size{18, 20}));
  EXPECT_EQ(stage.canvas.measure("", {}, 41), (Size{0, 0}));
}

// Where the letters of a painted button's caption stand: the box around its pixels of that colour.
Rect box_of(const Image& picture, Color color) {
  Rect box{picture.width, picture.height, 0, 0};
  int right = 0;
  int bottom = 0;
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      if (picture.at(x, y) != (0xFF000000U | color)) continue;
      box.x = std::min(box.x, x);
      box.y = std::min(box.y, y);
      right = std::max(right, x + 1);
      bottom = std::max(bottom, y + 1);
    }
  }
  return {box.x, box.y, right - box.x, bottom - box.y};
}

constexpr Color kInk = 0x0000FF;
constexpr Color kInkOver = 0x00FF00;

struct ButtonStage {
  ButtonStage() {
    button = {.type = 8,
              .size = {40, 20},
              .colors = {.scheme = ColorScheme::kCustom,
                         .back = 0x808080,
                         .back_over = 0x808080,
                         .fore = kInk,
                         .fore_over = kInkOver},
              .caption = "ab"};
  }
  Image paint() {
    Image picture(40, 20);
    BitmapCanvas canvas(picture, &raster);
    paint_button(canvas, button);
    return picture;
  }

  BlockRaster raster;
  ButtonPaint button;
};

TEST(ButtonCaption, StandsInTheMiddleAndMovesWhenPressed) {
  ButtonStage stage;
  // 12 by 10 in the middle of 40 by 20: at (14, 5), covered in rows 7 to 12.
  EXPECT_EQ(box_of(stage.paint(), kInk), (Rect{14, 7, 11, 6}));
  stage.button.hovering = true;
  EXPECT_EQ(box_of(stage.paint(), kInkOver), (Rect{14, 7, 11, 6}));
  stage.button.pressed = true;
  EXPECT_EQ(box_of(stage.paint(), kInkOver), (Rect{15, 8, 11, 6}));
}

TEST(ButtonCaption, OfType4IsLightWhenPressed) {
  ButtonStage stage;
  stage.button.type = 4;
  stage.button.pressed = true;
  // The face plus 31.
  EXPECT_EQ(box_of(stage.paint(), 0x9F9F9F), (Rect{15, 8, 11, 6}));
}

TEST(ButtonCaption, IsEtchedWhenDisabled) {
  ButtonStage stage;
  stage.button.enabled = false;
  stage.button.type = 9;
  const Image picture = stage.paint();
  // The shadow of the face, 64 less, lies above the highlight and a pixel up and left of it.
  EXPECT_EQ(box_of(picture, 0x404040), (Rect{13, 6, 11, 6}));
  EXPECT_EQ(picture.at(24, 12), 0xFFAFAFAFU);
}

TEST(ButtonCaption, OfType3IsItsTintDarkenedWhenDisabled) {
  ButtonStage stage;
  stage.button.enabled = false;
  stage.button.type = 3;
  // The tint is A0B0B0; 176 - 104 = 72, and the blue 160 - 160 * 104 / 192 = 160 - 86 = 74.
  EXPECT_EQ(box_of(stage.paint(), 0x4A4848), (Rect{14, 7, 11, 6}));
}

TEST(ButtonCaption, AnEffectPutsLightAndDarkBehindIt) {
  ButtonStage stage;
  stage.button.special_effect = 1;
  const Image raised = stage.paint();
  EXPECT_EQ(box_of(raised, kInk), (Rect{14, 7, 11, 6}));
  EXPECT_EQ(raised.at(13, 6), 0xFFAFAFAFU);   // the highlight, above
  EXPECT_EQ(raised.at(25, 13), 0xFF0E0E0EU);  // the shadow less 50, below
  for (const int effect : {2, -1, 77}) {
    stage.button.special_effect = effect;
    const Image sunk = stage.paint();
    EXPECT_EQ(sunk.at(13, 6), 0xFF0E0E0EU);
    EXPECT_EQ(sunk.at(25, 13), 0xFFAFAFAFU);
  }
}

TEST(ButtonCaption, OfType14IsUnderlinedUnderTheMouse) {
  ButtonStage stage;
  stage.button.type = 14;
  EXPECT_EQ(box_of(stage.paint(), kInk), (Rect{14, 7, 11, 6}));
  stage.button.hovering = true;
  // The line is as long as the text, a pixel below its baseline at 8.
  EXPECT_EQ(box_of(stage.paint(), kInkOver), (Rect{14, 7, 12, 8}));
}

TEST(ButtonCaption, GivesWayToThePicture) {
  ButtonStage stage;
  const Image picture(4, 4, 0xFF00FFFF);
  stage.button.picture = &picture;
  struct Place {
    PicturePosition position;
    Rect caption;
    Rect picture;
  };
  // The caption's place has 38 by 18 pixels from (1, 1) on, less the picture's 4.
  constexpr Place kPlaces[] = {{PicturePosition::kLeft, {16, 7, 11, 6}, {11, 8, 4, 4}},
                               {PicturePosition::kRight, {12, 7, 11, 6}, {25, 8, 4, 4}},
                               {PicturePosition::kTop, {14, 9, 11, 6}, {18, 2, 4, 4}},
                               {PicturePosition::kBottom, {14, 5, 11, 6}, {18, 14, 4, 4}}};
  for (const Place& place : kPlaces) {
    stage.button.picture_position = place.position;
    const Image painted = stage.paint();
    EXPECT_EQ(box_of(painted, kInk), place.caption) << static_cast<int>(place.position);
    EXPECT_EQ(box_of(painted, 0x00FFFF), place.picture) << static_cast<int>(place.position);
  }
  stage.button.picture_position = PicturePosition::kBehind;
  const Image behind = stage.paint();
  EXPECT_EQ(box_of(behind, kInk), (Rect{14, 7, 11, 6}));
  EXPECT_EQ(behind.at(19, 8), 0xFF00FFFFU);  // between the letters
}

TEST(ButtonPicture, ItsMaskColourLetsTheFaceThrough) {
  ButtonStage stage;
  stage.button.caption.clear();
  Image picture(2, 1, 0xFF00FFFF);
  picture.at(1, 0) = 0xFFC0C0C0;
  stage.button.picture = &picture;
  stage.button.colors.mask = 0xC0C0C0;
  EXPECT_EQ(stage.paint().at(19, 9), 0xFF00FFFFU);
  EXPECT_EQ(stage.paint().at(20, 9), 0xFF808080U);
  stage.button.use_mask_color = false;
  EXPECT_EQ(stage.paint().at(20, 9), 0xFFC0C0C0U);
}

TEST(ButtonPicture, HasAnotherUnderTheMouse) {
  ButtonStage stage;
  stage.button.caption.clear();
  const Image picture(2, 1, 0xFF00FFFF);
  const Image other(2, 1, 0xFF112233);
  stage.button.picture = &picture;
  stage.button.picture_over = &other;
  EXPECT_EQ(stage.paint().at(19, 9), 0xFF00FFFFU);
  stage.button.hovering = true;
  EXPECT_EQ(stage.paint().at(19, 9), 0xFF112233U);
  stage.button.pressed = true;  // and moved
  EXPECT_EQ(stage.paint().at(21, 10), 0xFF00FFFFU);
}

TEST(ButtonPicture, IsGreyWhenDisabledIfItShallBe) {
  ButtonStage stage;
  stage.button.caption.clear();
  stage.button.enabled = false;
  const Image picture(2, 1, 0xFF0000FF);
  stage.button.picture = &picture;
  stage.button.use_greyscale = true;
  // 30 of 100 parts of 255.
  EXPECT_EQ(stage.paint().at(19, 9), 0xFF4C4C4CU);
  stage.button.type = 3;
  // Through the tint A0B0B0: 76 * 160 / 255 = 47, 76 * 176 / 255 = 52.
  EXPECT_EQ(stage.paint().at(19, 9), 0xFF2F3434U);
  stage.button.type = 9;
  stage.button.use_greyscale = false;
  EXPECT_EQ(stage.paint().at(18, 8), 0xFF404040U);
}

}  // namespace
}  // namespace quillvane
