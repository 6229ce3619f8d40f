#include "view/win32/look/arrange.h"

#include <gtest/gtest.h>

#include <vector>

namespace quillvane {
namespace {

// A title bar, a row that fills the window, and a row of commands.
constexpr Track kRows[] = {{30, 0}, {0, 1}, {20, 0}};
constexpr Track kColumns[] = {{0, 1}, {0, 3}};
constexpr ControlPlace at(Pack pack, int row, int column, int columns, int width,
                          std::string_view tab = {}) {
  return {"c", ControlKind::kButton, row, column, columns, pack, width, {}, {}, tab, {}};
}
constexpr ControlPlace kControls[] = {
    at(Pack::kFill, 1, 0, 1, 0),       at(Pack::kFill, 1, 1, 1, 0),
    at(Pack::kFromLeft, 2, 0, 2, 50),  at(Pack::kFromLeft, 2, 0, 2, 60),
    at(Pack::kFromRight, 2, 0, 2, 40), at(Pack::kFill, 2, 0, 2, 0),
    at(Pack::kFromRight, 0, 0, 2, 42), at(Pack::kFromRight, 0, 0, 2, 42),
};

WindowLayout layout_of(std::span<const ControlPlace> controls) {
  WindowLayout layout{};
  layout.rows = kRows;
  layout.columns = kColumns;
  layout.controls = controls;
  layout.margin = 10;
  layout.gap = 5;
  layout.tab_height = 8;
  return layout;
}

void expect_box(const Box& box, int left, int top, int width, int height) {
  EXPECT_EQ(box.left, left);
  EXPECT_EQ(box.top, top);
  EXPECT_EQ(box.width, width);
  EXPECT_EQ(box.height, height);
}

TEST(Arrange, ScalesAndRounds) {
  EXPECT_EQ(scaled(10, 96), 10);
  EXPECT_EQ(scaled(10, 144), 15);
  EXPECT_EQ(scaled(10, 192), 20);
  EXPECT_EQ(scaled(3, 120), 4);  // 3.75
}

TEST(Arrange, SharesGetWhatFixedTracksAndGapsLeave) {
  // 425 less two margins and one gap leaves 400: 100 and 300. Heights: 200 less 30, 20, two gaps
  // and the margin below leaves 130.
  const Arrangement places = arrange(layout_of(kControls), 425, 200, 96, {});

  expect_box(places.controls[0], 10, 35, 100, 130);
  expect_box(places.controls[1], 115, 35, 300, 130);
}

TEST(Arrange, PacksInTheOrderOfTheTableAndFillsTheRest) {
  const Arrangement places = arrange(layout_of(kControls), 425, 200, 96, {});

  expect_box(places.controls[2], 10, 170, 50, 20);
  expect_box(places.controls[3], 65, 170, 60, 20);
  expect_box(places.controls[4], 375, 170, 40, 20);
  expect_box(places.controls[5], 130, 170, 240, 20);
}

TEST(Arrange, TitleButtonsReachTheEdgesWithoutGaps) {
  const Arrangement places = arrange(layout_of(kControls), 425, 200, 96, {});

  expect_box(places.title, 0, 0, 425, 30);
  expect_box(places.controls[6], 383, 0, 42, 30);
  expect_box(places.controls[7], 341, 0, 42, 30);
}

TEST(Arrange, ALongerCaptionWidensItsControlAndMovesTheNext) {
  const std::vector<int> wanted = {0, 0, 90, 0, 0, 0, 0, 0};
  const Arrangement places = arrange(layout_of(kControls), 425, 200, 96, wanted);

  expect_box(places.controls[2], 10, 170, 90, 20);
  expect_box(places.controls[3], 105, 170, 60, 20);
}

TEST(Arrange, EverythingDoublesAtTwiceTheResolution) {
  const Arrangement places = arrange(layout_of(kControls), 850, 400, 192, {});

  expect_box(places.controls[1], 230, 70, 600, 260);
  expect_box(places.controls[4], 750, 340, 80, 40);
  expect_box(places.title, 0, 0, 850, 60);
}

TEST(Arrange, ControlsWithTabsShareTheCellBelowTheStrip) {
  constexpr ControlPlace kShared[] = {at(Pack::kFill, 1, 0, 2, 0, "one"),
                                      at(Pack::kFill, 1, 0, 2, 0, "two")};
  const Arrangement places = arrange(layout_of(kShared), 425, 200, 96, {});

  expect_box(places.tab_strips[0], 10, 35, 405, 8);
  expect_box(places.controls[0], 10, 43, 405, 122);
  expect_box(places.controls[1], 10, 43, 405, 122);
}

TEST(Arrange, AWindowThatIsTooSmallGivesNoNegativeLengths) {
  const Arrangement places = arrange(layout_of(kControls), 60, 40, 96, {});

  for (const Box& box : places.controls) {
    EXPECT_GE(box.width, 0);
    EXPECT_GE(box.height, 0);
  }
}

TEST(Arrange, AControlPackedAtTheTopTakesAHeightWithoutAGap) {
  constexpr ControlPlace kStacked[] = {at(Pack::kFromTop, 1, 0, 2, 12),
                                       at(Pack::kFill, 1, 0, 2, 0)};
  const WindowLayout layout = layout_of(kStacked);

  const Arrangement places = arrange(layout, 200, 200, kPlainDpi, {});

  // The row begins below the title bar and a gap, and ends above the commands and theirs.
  expect_box(places.controls[0], 10, 35, 180, 12);
  expect_box(places.controls[1], 10, 47, 180, 118);
}

TEST(Arrange, ARowReachesFromMarginToMargin) {
  expect_box(row_box(layout_of(kControls), 2, 200, 200, kPlainDpi), 10, 170, 180, 20);
}

TEST(Arrange, APageHasAGridOfItsOwn) {
  constexpr Track kOneColumn[] = {{0, 1}};
  constexpr Track kTwoRows[] = {{30, 0}, {0, 1}};
  constexpr ControlPlace kOnly[] = {at(Pack::kFill, 1, 0, 1, 0)};
  const PageGrid page = {{}, kTwoRows, kOneColumn, kOnly};

  const Arrangement places = arrange(layout_of(kControls), page, 200, 200, kPlainDpi, {});

  ASSERT_EQ(places.controls.size(), 1U);
  expect_box(places.controls[0], 10, 35, 180, 155);
}

}  // namespace
}  // namespace quillvane
