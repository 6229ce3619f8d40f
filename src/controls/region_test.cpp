#include "controls/region.h"

#include <gtest/gtest.h>

#include <string>

#include "controls/button_look.h"

namespace quillvane {
namespace {

// A row of text for each row of pixels: # belongs to the shape.
std::string drawn(const Region& region) {
  std::string text;
  for (int y = 0; y < region.size().height; ++y) {
    for (int x = 0; x < region.size().width; ++x) text += region.contains({x, y}) ? '#' : '.';
    text += '\n';
  }
  return text;
}

TEST(Region, ARectangleHasAllItsPixels) {
  const Region region = Region::rectangle({3, 2});
  EXPECT_EQ(drawn(region), "###\n###\n");
  EXPECT_FALSE(region.contains({3, 0}));
  EXPECT_FALSE(region.contains({0, 2}));
  EXPECT_FALSE(region.contains({-1, 0}));
}

TEST(Region, AnEllipseHasThePixelsWhoseMiddleLiesInIt) {
  EXPECT_EQ(drawn(Region::ellipse({4, 4})),
            ".##.\n"
            "####\n"
            "####\n"
            ".##.\n");
  // (1, 0) lies at (-3, -2) of half axes 4.5 and 2.5: 9/20.25 + 4/6.25 is above 1. (2, 0) at
  // (-2, -2): 4/20.25 + 0.64 is below.
  EXPECT_EQ(drawn(Region::ellipse({9, 5})),
            "..#####..\n"
            "#########\n"
            "#########\n"
            "#########\n"
            "..#####..\n");
  EXPECT_EQ(drawn(Region::ellipse({1, 1})), "#\n");
}

TEST(Region, ButtonsLoseTheCornersOfTheirType) {
  const std::string whole = "######\n######\n######\n######\n";
  for (const int type : {2, 6, 7, 8, 9, 10, 11, 12}) {
    EXPECT_EQ(drawn(button_region(type, {6, 4})), whole) << type;
  }
  for (const int type : {1, 14}) {
    EXPECT_EQ(drawn(button_region(type, {6, 4})), ".####.\n######\n######\n.####.\n") << type;
  }
  for (const int type : {3, 4}) {
    EXPECT_EQ(drawn(button_region(type, {6, 4})), "..##..\n.####.\n.####.\n..##..\n") << type;
  }
  EXPECT_EQ(drawn(button_region(5, {6, 4})), "#####.\n######\n######\n.#####\n");
  EXPECT_EQ(drawn(button_region(13, {4, 4})), ".##.\n####\n####\n.##.\n");
}

TEST(Region, SmallButtonsMayHaveNothingLeft) {
  for (int type = kFirstButtonType; type <= kLastButtonType; ++type) {
    EXPECT_EQ(button_region(type, {0, 0}).size(), (Size{0, 0}));
    EXPECT_EQ(button_region(type, {1, 1}).size(), (Size{1, 1}));
  }
  EXPECT_FALSE(button_region(1, {1, 1}).contains({0, 0}));
}

}  // namespace
}  // namespace quillvane
