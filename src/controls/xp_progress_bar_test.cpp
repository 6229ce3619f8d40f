#include "controls/xp_progress_bar.h"

#include <gtest/gtest.h>

#include "controls/bitmap_canvas.h"
#include "forms/window.h"
#include "platform/virtual/queued_dialogs.h"

namespace quillvane {
namespace {

// The inner area is 100 wide, from column 3 to 102, and 10 high, from row 3 on.
constexpr Size kSize = {106, 16};

struct Stage {
  Stage() { bar.resize(canvas, kSize); }

  void show(std::int32_t value) {
    bar.set_value(value);
    bar.draw(canvas);
  }
  // Where the filled part of the inner area ends, counted from its first column; -1 when there is
  // a gap in it.
  [[nodiscard]] int filled() const {
    int end = 0;
    for (int x = 0; x < 100; ++x) {
      if (picture.at(3 + x, 8) == (0xFF000000U | kBarBlank)) continue;
      if (end != x) return -1;
      end = x + 1;
    }
    return end;
  }

  EffectLog effects;
  QueuedDialogs dialogs{effects};
  Window window{"Form"};
  Image picture{kSize.width, kSize.height};
  BitmapCanvas canvas{picture, nullptr};
  Xp_ProgressBar bar{window, "bar", dialogs};
};

TEST(XpProgressBar, BlocksReachTheValueInStepsOfTen) {
  Stage stage;
  EXPECT_EQ(stage.filled(), 0);
  stage.show(50);
  EXPECT_EQ(stage.filled(), 50);
  stage.show(51);
  EXPECT_EQ(stage.filled(), 60);
  stage.show(60);
  EXPECT_EQ(stage.filled(), 60);
}

TEST(XpProgressBar, TheHighestValueFillsTheBar) {
  Stage stage;
  stage.show(100);
  EXPECT_EQ(stage.filled(), 100);
  Stage smooth;
  smooth.bar.set_style(1);
  smooth.show(100);
  EXPECT_EQ(smooth.filled(), 100);
}

TEST(XpProgressBar, TheLowestValueClearsTheBar) {
  for (const int style : {0, 1}) {
    Stage stage;
    const Image empty = stage.picture;
    stage.bar.set_style(style);
    stage.show(70);
    EXPECT_NE(stage.picture, empty);
    stage.show(0);
    EXPECT_EQ(stage.picture, empty);
  }
}

TEST(XpProgressBar, WithoutGapsItReachesThePixel) {
  Stage stage;
  stage.bar.set_style(1);
  stage.show(37);
  EXPECT_EQ(stage.filled(), 37);
  stage.show(81);
  EXPECT_EQ(stage.filled(), 81);
}

TEST(XpProgressBar, OnTheWayItLooksAsIfItBeganThere) {
  for (const int style : {0, 1}) {
    for (const int before : {5, 40, 99, 100}) {
      for (const int value : {1, 39, 40, 62, 100}) {
        Stage stage;
        stage.bar.set_style(style);
        stage.show(before);
        stage.show(value);
        Stage fresh;
        fresh.bar.set_style(style);
        fresh.show(value);
        EXPECT_EQ(stage.picture, fresh.picture) << style << ": " << before << " to " << value;
      }
    }
  }
}

TEST(XpProgressBar, NothingRunsOverItsFrame) {
  for (int width = 1; width < 40; ++width) {
    for (const int style : {0, 1}) {
      Stage stage;
      const Size size{width, 9};
      stage.picture = Image(width, 9);
      BitmapCanvas canvas(stage.picture, nullptr);
      stage.bar.set_style(style);
      stage.bar.resize(canvas, size);
      const Image empty = stage.picture;
      stage.bar.set_value(100);
      stage.bar.draw(canvas);
      for (int y = 0; y < 9; ++y) {
        for (int x = 0; x < width; ++x) {
          const bool inner = x >= 3 && x < width - 3 && y >= 3 && y < 6;
          if (inner) continue;
          EXPECT_EQ(stage.picture.at(x, y), empty.at(x, y)) << x << ", " << y;
        }
      }
    }
  }
}

TEST(XpProgressBar, ASpanOfNothingIsEmpty) {
  for (const int style : {0, 1}) {
    Stage stage;
    const Image empty = stage.picture;
    stage.bar.set_style(style);
    stage.bar.set_minimum(50);
    stage.bar.set_maximum(50);
    stage.show(50);
    EXPECT_EQ(stage.picture, empty);
    EXPECT_TRUE(stage.dialogs.take_boxes().empty());
  }
}

TEST(XpProgressBar, TheValueIsItsShareOfTheSpan) {
  Stage stage;
  stage.bar.set_maximum(400);
  stage.bar.set_minimum(200);
  stage.bar.set_style(1);
  stage.show(250);
  EXPECT_EQ(stage.filled(), 25);
}

struct Refused {
  const char* text;
  void (*set)(Xp_ProgressBar& bar);
};

TEST(XpProgressBar, WhatDoesNotFitIsToldAndLeftAsItWas) {
  constexpr Refused kRefused[] = {
      {"Value can NOT be higher than Maximum !", [](Xp_ProgressBar& b) { b.set_value(91); }},
      {"Value can NOT be smaller than minimum !", [](Xp_ProgressBar& b) { b.set_value(9); }},
      {"Minimum can NOT be biger than maximum !", [](Xp_ProgressBar& b) { b.set_minimum(91); }},
      {"Minimum can NOT be smaller then 0 !", [](Xp_ProgressBar& b) { b.set_minimum(-1); }},
      {"Maximum can NOT be smaller than minimum !", [](Xp_ProgressBar& b) { b.set_maximum(9); }}};
  for (const auto& [text, set] : kRefused) {
    Stage stage;
    stage.bar.set_minimum(10);
    stage.bar.set_maximum(90);
    stage.bar.set_value(30);
    set(stage.bar);
    set(stage.bar);  // one box a step
    const auto log = stage.dialogs.take_boxes();
    ASSERT_EQ(log.size(), 2U) << text;
    EXPECT_EQ(log[0].text, text);
    EXPECT_EQ(log[0].title, "Error");
    EXPECT_EQ(log[0].style, 16U);
    EXPECT_EQ(stage.bar.minimum(), 10);
    EXPECT_EQ(stage.bar.maximum(), 90);
    EXPECT_EQ(stage.bar.value(), 30);
  }
}

TEST(XpProgressBar, EachLookHasItsOwnBlocks) {
  constexpr std::string_view kNames[] = {"master", "blue",    "orangemet", "greymet",
                                         "grmet",  "goldmet", "bluemet",   "redmet"};
  for (int look = 0; look < kBarLooks; ++look) {
    EXPECT_EQ(block_pictures_name(look), kNames[look]);
    Stage stage;
    stage.bar.set_look(look);
    stage.show(50);
    EXPECT_EQ(stage.picture.at(4, 3), block_pictures(look).block.at(0, 0));
    for (int other = 0; other < look; ++other) {
      EXPECT_NE(block_pictures(look).block, block_pictures(other).block);
    }
  }
  EXPECT_EQ(block_pictures_name(8), "master");
  EXPECT_EQ(block_pictures_name(-1), "master");
}

TEST(XpProgressBar, ItsPropertiesAreStoredAndFoundAgain) {
  Stage stage;
  stage.bar.set_maximum(500);
  stage.bar.set_minimum(200.5);
  stage.bar.set_value(300);
  stage.bar.set_style(1);
  stage.bar.set_look(5);
  PropertyStore store;
  stage.bar.write_properties(store);
  Stage other;
  other.bar.read_properties(store);
  EXPECT_EQ(other.bar.minimum(), 200.5);
  EXPECT_EQ(other.bar.maximum(), 500);
  EXPECT_EQ(other.bar.value(), 300);
  EXPECT_EQ(other.bar.style(), 1);
  EXPECT_EQ(other.bar.look(), 5);
  PropertyStore again;
  other.bar.write_properties(again);
  EXPECT_EQ(again, store);
  other.bar.read_properties({});
  EXPECT_EQ(other.bar.property("Min"), PropertyValue(std::int64_t{0}));
  EXPECT_EQ(other.bar.property("max"), PropertyValue(std::int64_t{100}));
  EXPECT_EQ(other.bar.property("value"), PropertyValue(std::int64_t{0}));
  EXPECT_EQ(other.bar.property("STYLE"), PropertyValue(std::int64_t{0}));
  EXPECT_EQ(other.bar.property("ProgressLook"), PropertyValue(std::int64_t{0}));
}

}  // namespace
}  // namespace quillvane
