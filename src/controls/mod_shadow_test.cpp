#include "controls/mod_shadow.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace quillvane {
namespace {

constexpr WindowId kHost = 11;
constexpr WindowId kShadow = 77;

class NotingScreen final : public ShadowScreen {
 public:
  WindowId make_shadow(WindowId /*host*/) override {
    ++made;
    return fails ? 0 : kShadow;
  }
  void watch(WindowId /*host*/) override { ++watched; }
  void unwatch(WindowId /*host*/) override { --watched; }
  void destroy(WindowId /*shadow*/) override { ++destroyed; }
  WindowId shadow_of(WindowId host) override { return shadows[host]; }
  void set_shadow_of(WindowId host, WindowId shadow) override { shadows[host] = shadow; }
  void remove_shadow_of(WindowId host) override { shadows.erase(host); }
  std::int32_t extra(WindowId /*shadow*/, int place) override { return extras[place]; }
  void set_extra(WindowId /*shadow*/, int place, std::int32_t value) override {
    extras[place] = value;
  }
  Rect bounds(WindowId /*window*/) override { return window; }
  bool is_shown(WindowId /*window*/) override { return shown; }
  bool is_minimised(WindowId /*window*/) override { return minimised; }
  void set_picture(WindowId /*shadow*/, const Image& picture) override {
    image = picture;
    ++drawn;
  }
  void place(WindowId /*shadow*/, WindowId /*host*/, Point at) override {
    corner = at;
    ++placed;
  }
  void hide(WindowId /*shadow*/) override { ++hidden; }

  bool fails = false;
  bool shown = true;
  bool minimised = false;
  int made = 0;
  int watched = 0;
  int destroyed = 0;
  int drawn = 0;
  int placed = 0;
  int hidden = 0;
  std::map<WindowId, WindowId> shadows;
  std::map<int, std::int32_t> extras;
  Rect window{100, 200, 30, 20};
  Point corner;
  Image image;
};

struct Stage {
  NotingScreen screen;
  modShadow shadows{screen};
};

TEST(ModShadow, LiesAroundItsWindow) {
  Stage stage;
  stage.shadows.create(kHost);
  EXPECT_EQ(stage.screen.corner, (Point{60, 160}));
  EXPECT_EQ(stage.screen.image.width, 110);
  EXPECT_EQ(stage.screen.image.height, 100);
  EXPECT_EQ(stage.screen.extras,
            (std::map<int, std::int32_t>{{0, 40}, {4, 0xFF0000}, {8, 25}, {12, 50}}));
  EXPECT_EQ(stage.screen.watched, 1);
  // Beside the window it is half there, and its blue is multiplied by that.
  EXPECT_EQ(stage.screen.image.at(50, 39), 0x80800000U);
}

TEST(ModShadow, AWindowHasOne) {
  Stage stage;
  stage.shadows.create(kHost);
  stage.shadows.create(kHost);
  EXPECT_EQ(stage.screen.made, 1);
}

TEST(ModShadow, WithoutAWindowOfItsOwnThereIsNone) {
  Stage stage;
  stage.screen.fails = true;
  stage.shadows.create(kHost);
  EXPECT_FALSE(stage.shadows.look(kHost));
  EXPECT_EQ(stage.screen.watched, 0);
  stage.shadows.set_size(kHost, 5);
  stage.shadows.remove(kHost);
  EXPECT_EQ(stage.screen.placed, 0);
  EXPECT_EQ(stage.screen.destroyed, 0);
}

TEST(ModShadow, ItsSizeAndColourChangeAlone) {
  Stage stage;
  stage.shadows.create(kHost);
  stage.shadows.set_color(kHost, 0x808080);
  stage.shadows.set_size(kHost, 5);
  EXPECT_EQ(stage.shadows.look(kHost), (ShadowLook{5, 0x808080, 25, 50}));
  EXPECT_EQ(stage.screen.corner, (Point{95, 195}));
  EXPECT_EQ(stage.screen.placed, 3);
}

TEST(ModShadow, SizesOutOfRangeChangeNothing) {
  Stage stage;
  stage.shadows.create(kHost);
  for (const int size : {0, 101, -1}) stage.shadows.set_size(kHost, size);
  EXPECT_EQ(stage.shadows.look(kHost)->size, 40);
  EXPECT_EQ(stage.screen.placed, 1);
  for (const int size : {1, 100}) {
    stage.shadows.set_size(kHost, size);
    EXPECT_EQ(stage.shadows.look(kHost)->size, size);
  }
}

TEST(ModShadow, FollowsItsWindowAndHidesWithIt) {
  Stage stage;
  stage.shadows.create(kHost);
  stage.shadows.message(kHost, 0x47, 0);
  stage.shadows.message(kHost, 0x232, 0);
  EXPECT_EQ(stage.screen.placed, 3);
  EXPECT_EQ(stage.screen.drawn, 1);
  stage.screen.window = {5, 6, 40, 20};
  stage.shadows.message(kHost, 0x47, 0);
  EXPECT_EQ(stage.screen.corner, (Point{-35, -34}));
  EXPECT_EQ(stage.screen.drawn, 2);
  EXPECT_EQ(stage.screen.image.width, 120);
  stage.screen.placed = 3;
  stage.screen.minimised = true;
  stage.shadows.message(kHost, 0x112, 0xF020);
  EXPECT_EQ(stage.screen.hidden, 1);
  stage.screen.minimised = false;
  stage.shadows.message(kHost, 0x112, 0xF122);  // with bits of the system's own
  EXPECT_EQ(stage.screen.placed, 4);
  stage.screen.shown = false;
  stage.shadows.message(kHost, 0x47, 0);
  EXPECT_EQ(stage.screen.hidden, 2);
  stage.shadows.message(kHost, 0x112, 0xF060);
  stage.shadows.message(kHost, 0x0F, 0);
  EXPECT_EQ(stage.screen.placed, 4);
  EXPECT_EQ(stage.screen.hidden, 2);
}

TEST(ModShadow, GoesWithItsWindow) {
  Stage stage;
  stage.shadows.create(kHost);
  stage.shadows.message(kHost, 0x02, 0);
  EXPECT_EQ(stage.screen.destroyed, 1);
  EXPECT_EQ(stage.screen.watched, 0);
  EXPECT_FALSE(stage.shadows.look(kHost));
}

}  // namespace
}  // namespace quillvane
