#include "controls/shadow_picture.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

std::uint32_t alpha(const Image& picture, int x, int y) { return picture.at(x, y) >> 24U; }

TEST(WindowShadow, FallsOffStraightAtACurveOfAHalf) {
  EXPECT_DOUBLE_EQ(shadow_share(0, 0.5), 1);
  EXPECT_DOUBLE_EQ(shadow_share(0.25, 0.5), 0.75);
  EXPECT_DOUBLE_EQ(shadow_share(1, 0.5), 0);
}

TEST(WindowShadow, FallsOffAlongABezierCurveOtherwise) {
  for (const double curve : {0.0, 0.25, 0.75, 1.0}) {
    EXPECT_NEAR(shadow_share(0, curve), 1, 1e-12);
    EXPECT_NEAR(shadow_share(1, curve), 0, 1e-12);
  }
  // k = 0: t is the root of the distance, and the share (1 - t)^2.
  EXPECT_NEAR(shadow_share(0.25, 0), 0.25, 1e-12);
  // k = -0.5 at 0.5: t = (-0.5 + sqrt(1 + 0.25)) / 1 = 0.618034; 0.5 t (1 - t) + (1 - t)^2.
  EXPECT_NEAR(shadow_share(0.5, 0.25), 0.118034 + 0.145898, 1e-6);
  // k = -2 at 0.75: t = (-2 + 1) / -2 = 0.5; 2 * 0.25 + 0.25.
  EXPECT_NEAR(shadow_share(0.75, 1), 0.75, 1e-12);
}

TEST(WindowShadow, LiesAroundTheWindowAndNotUnderIt) {
  const Image shadow = shadow_picture({6, 4}, {.size = 4, .color = 0x123456, .curve = 50});
  EXPECT_EQ(shadow.width, 14);
  EXPECT_EQ(shadow.height, 12);
  for (int y = 4; y < 8; ++y) {
    for (int x = 4; x < 10; ++x) EXPECT_EQ(shadow.at(x, y), 0U);
  }
  // Half of 255, then 3, 2 and 1 fourths of that; all around the same.
  for (int out = 0; out < 4; ++out) {
    const std::uint32_t expected[] = {128, 96, 64, 32};
    EXPECT_EQ(alpha(shadow, 6, 3 - out), expected[out]);
    EXPECT_EQ(alpha(shadow, 6, 8 + out), expected[out]);
    EXPECT_EQ(alpha(shadow, 3 - out, 5), expected[out]);
    EXPECT_EQ(alpha(shadow, 10 + out, 5), expected[out]);
  }
}

TEST(WindowShadow, ItsColourIsNotMultiplied) {
  const Image shadow = shadow_picture({6, 4}, {.size = 4, .color = 0x123456, .curve = 50});
  EXPECT_EQ(shadow.at(6, 0) & 0xFFFFFFU, 0x123456U);
  EXPECT_EQ(premultiplied(shadow).at(6, 3), 0x80091A2BU);
  EXPECT_EQ(premultiplied(shadow).at(6, 5), 0U);
}

TEST(WindowShadow, ItsCornersAreRound) {
  const Image shadow = shadow_picture({6, 4}, {.size = 4, .color = 0, .curve = 50});
  // (1, 1) of the cell: the root of 2 / 16 is 0.353553; 127.5 * 0.646447 = 82.4.
  for (const int x : {2, 11}) {
    for (const int y : {2, 9}) EXPECT_EQ(alpha(shadow, x, y), 82U);
  }
  // (3, 3) lies further out than the shadow goes.
  EXPECT_EQ(shadow.at(0, 0), 0U);
}

TEST(WindowShadow, OfOnePixelIsARing) {
  const Image shadow = shadow_picture({3, 2}, {.size = 1, .color = 0, .opacity = 100});
  for (int y = 0; y < 4; ++y) {
    for (int x = 0; x < 5; ++x) {
      const bool is_ring = x == 0 || x == 4 || y == 0 || y == 3;
      EXPECT_EQ(shadow.at(x, y), is_ring ? 0xFF000000U : 0U);
    }
  }
}

}  // namespace
}  // namespace quillvane
