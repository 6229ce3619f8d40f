#include "view/win32/look/form7_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "tests/support/scan_fixture.h"
#include "view/win32/look/arrange.h"

namespace quillvane {
namespace {

// Windows that the layout has to stand: as it opens, on a small screen, and as small as it gets.
struct Size {
  int width;
  int height;
};

std::vector<Size> sizes() {
  const WindowLayout& layout = form7_layout();
  return {{layout.width, layout.height}, {800, 600}, {layout.least_width, layout.least_height}};
}

bool overlap(const Box& one, const Box& other) {
  return one.left < other.right() && other.left < one.right() && one.top < other.bottom() &&
         other.top < one.bottom();
}

template <typename Check>
void for_each_arrangement(Check check) {
  for (const Size& size : sizes()) {
    for (const int dpi : {96, 144, 192}) {
      SCOPED_TRACE(std::to_string(size.width) + " x " + std::to_string(size.height) + " at " +
                   std::to_string(dpi));
      const int width = scaled(size.width, dpi);
      const int height = scaled(size.height, dpi);
      check(arrange(form7_layout(), width, height, dpi, {}), width, height, dpi);
    }
  }
}

TEST(Form7Layout, NamesEachControlOfTheWindowOnceOrSaysThatItIsNotDrawn) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  std::multiset<std::string> told;
  for (const ControlPlace& place : form7_layout().controls) told.emplace(place.name);
  for (const std::string_view name : form7_undrawn()) told.emplace(name);

  std::multiset<std::string> existing;
  for (const Control* control : form.controls()) existing.insert(control->name());

  EXPECT_EQ(told, existing);
}

TEST(Form7Layout, PagesAndKeysAreControlsOfTheWindow) {
  ScanFixture fixture;
  const Form7& form = fixture.start();

  for (const ControlPlace& place : form7_layout().controls) {
    if (place.page.empty()) continue;
    EXPECT_NE(form.find(place.page), nullptr) << place.page;
  }
  for (const KeyClick& key : form7_layout().keys) {
    EXPECT_NE(dynamic_cast<Clickable*>(form.find(key.control)), nullptr) << key.control;
  }
}

TEST(Form7Layout, EachButtonOfTheToolBarHasAHintAndNoSeparatorHasOne) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  std::set<int> hinted;
  for (const ToolbarHint& hint : form7_layout().hints) hinted.insert(hint.button);

  for (int number = 1; number <= form.Toolbar1.count(); ++number) {
    EXPECT_EQ(hinted.contains(number), !form.Toolbar1.button(number)->separator) << number;
  }
}

TEST(Form7Layout, WhatShowsNoTextHasAnAccessibleName) {
  ScanFixture fixture;
  const Form7& form = fixture.start();

  for (const ControlPlace& place : form7_layout().controls) {
    const auto* captioned = dynamic_cast<const Clickable*>(form.find(place.name));
    const bool has_caption = captioned != nullptr && !captioned->caption().empty();
    const bool shows_text =
        place.kind == ControlKind::kLabel || place.kind == ControlKind::kPathLine;
    EXPECT_TRUE(has_caption || shows_text || !place.accessible_name.empty()) << place.name;
  }
}

TEST(Form7Layout, ControlsStandInsideTheWindow) {
  for_each_arrangement([](const Arrangement& places, int width, int height, int /*dpi*/) {
    for (std::size_t i = 0; i < places.controls.size(); ++i) {
      const Box& box = places.controls[i];
      SCOPED_TRACE(form7_layout().controls[i].name);
      EXPECT_GT(box.width, 0);
      EXPECT_GT(box.height, 0);
      EXPECT_GE(box.left, 0);
      EXPECT_GE(box.top, 0);
      EXPECT_LE(box.right(), width);
      EXPECT_LE(box.bottom(), height);
    }
  });
}

TEST(Form7Layout, OnlyListsThatShareTheirPlaceByTabsOverlap) {
  for_each_arrangement([](const Arrangement& places, int, int, int) {
    const auto controls = form7_layout().controls;
    for (std::size_t i = 0; i < controls.size(); ++i) {
      for (std::size_t j = i + 1; j < controls.size(); ++j) {
        if (!controls[i].tab.empty() && !controls[j].tab.empty()) continue;
        EXPECT_FALSE(overlap(places.controls[i], places.controls[j]))
            << controls[i].name << " and " << controls[j].name;
      }
    }
  });
}

TEST(Form7Layout, NothingPackedIsNarrowerThanItsTableSays) {
  for_each_arrangement([](const Arrangement& places, int, int, int dpi) {
    const auto controls = form7_layout().controls;
    for (std::size_t i = 0; i < controls.size(); ++i) {
      if (controls[i].pack == Pack::kFill) continue;
      EXPECT_GE(places.controls[i].width, scaled(controls[i].width, dpi)) << controls[i].name;
    }
  });
}

TEST(Form7Layout, TheTreeIsOnTheLeftTheListsOnTheRightTheSummaryBelow) {
  const auto controls = form7_layout().controls;
  const auto box_of = [&](const Arrangement& places, std::string_view name) {
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [name](const auto& place) { return place.name == name; });
    return places.controls[static_cast<std::size_t>(found - controls.begin())];
  };
  for_each_arrangement([&](const Arrangement& places, int, int, int) {
    const Box tree = box_of(places, "Tv1");
    const Box list = box_of(places, "view5");
    EXPECT_LT(tree.right(), list.left);
    EXPECT_EQ(tree.bottom(), list.bottom());
    EXPECT_GT(box_of(places, "Label11").top, tree.bottom());
  });
}

}  // namespace
}  // namespace quillvane
