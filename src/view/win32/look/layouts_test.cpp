// What holds for the table of each window.
#include "view/win32/look/layouts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>

#include "dialogs/about_window.h"
#include "dialogs/custom_dialog.h"
#include "dialogs/custom_entry_dialog.h"
#include "dialogs/ignore_dialog.h"
#include "dialogs/type_dialog.h"
#include "tests/support/scan_fixture.h"
#include "view/win32/look/arrange.h"

namespace quillvane {
namespace {

bool overlap(const Box& one, const Box& other) {
  return one.left < other.right() && other.left < one.right() && one.top < other.bottom() &&
         other.top < one.bottom();
}

// The windows of a program that runs; each test looks at one of them.
class Layouts : public testing::TestWithParam<const char*> {
 protected:
  Layouts() {
    Form7& form = fixture_.start();
    TextBox& mail = form.Text14;
    Session& session = fixture_.program->session;
    list_ = std::make_unique<Form2>(session, fixture_.program->windows, mail);
    entry_ = std::make_unique<Form5>(session, *list_, mail);
    type_ = std::make_unique<Form4>(session, form.View101, form.Text12, form.view1);
    ignored_ = std::make_unique<Form1>(session, mail);
    about_ = std::make_unique<frmabout>(session);
  }

  [[nodiscard]] const Window& window() const {
    const std::string name = GetParam();
    if (name == "Form1") return *ignored_;
    if (name == "Form2") return *list_;
    if (name == "Form4") return *type_;
    if (name == "Form5") return *entry_;
    if (name == "frmabout") return *about_;
    return fixture_.program->main_window();
  }
  [[nodiscard]] static const WindowLayout& layout() { return *find_layout(GetParam()); }

  // At the sizes and resolutions that a layout has to stand: as the window opens, on a small
  // screen, and as small as it gets.
  template <typename Check>
  void for_each_arrangement(Check check) const {
    const Box sizes[] = {{0, 0, layout().width, layout().height},
                         {0, 0, std::min(layout().width, 800), std::min(layout().height, 600)},
                         {0, 0, layout().least_width, layout().least_height}};
    for (const Box& size : sizes) {
      for (const int dpi : {96, 144, 192}) {
        const Box window{0, 0, scaled(size.width, dpi), scaled(size.height, dpi)};
        SCOPED_TRACE(std::to_string(size.width) + " x " + std::to_string(size.height) + " at " +
                     std::to_string(dpi));
        check(arrange(layout(), window.width, window.height, dpi, {}), window, dpi);
      }
    }
  }

  ScanFixture fixture_;
  std::unique_ptr<Form2> list_;
  std::unique_ptr<Form4> type_;
  std::unique_ptr<Form5> entry_;
  std::unique_ptr<Form1> ignored_;
  std::unique_ptr<frmabout> about_;
};

INSTANTIATE_TEST_SUITE_P(OfEachWindow, Layouts,
                         testing::Values("Form7", "Form1", "Form2", "Form4", "Form5", "frmabout"),
                         [](const auto& name) { return std::string(name.param); });

TEST_P(Layouts, NamesEachControlOfTheWindowOnceOrSaysThatItIsNotDrawn) {
  std::multiset<std::string> told;
  for (const ControlPlace& place : layout().controls) told.emplace(place.name);
  for (const std::string_view name : layout().undrawn) told.emplace(name);

  std::multiset<std::string> existing;
  for (const Control* control : window().controls()) existing.insert(control->name());

  EXPECT_EQ(told, existing);
}

TEST_P(Layouts, WhatItNamesElseIsThereToo) {
  for (const ControlPlace& place : layout().controls) {
    if (place.page.empty()) continue;
    EXPECT_NE(window().find(place.page), nullptr) << place.page;
  }
  for (const KeyClick& key : layout().keys) {
    EXPECT_NE(dynamic_cast<Clickable*>(window().find(key.control)), nullptr) << key.control;
  }
  for (const ReadingClick& click : layout().reading_clicks) {
    Control* control = window().find(click.control);
    EXPECT_NE(control, nullptr) << click.control;
    EXPECT_EQ(dynamic_cast<Toolbar*>(control) != nullptr, click.button != 0) << click.control;
  }
  if (!layout().title.empty()) {
    EXPECT_NE(dynamic_cast<Label*>(window().find(layout().title)), nullptr);
  }
  if (!layout().default_button.empty()) {
    EXPECT_NE(dynamic_cast<Button*>(window().find(layout().default_button)), nullptr);
  }
}

TEST_P(Layouts, WhatShowsNoTextHasAnAccessibleName) {
  const ControlPlace* before = nullptr;
  for (const ControlPlace& place : layout().controls) {
    const auto* captioned = dynamic_cast<const Clickable*>(window().find(place.name));
    const bool has_caption = captioned != nullptr && !captioned->caption().empty();
    const bool shows_text =
        place.kind == ControlKind::kLabel || place.kind == ControlKind::kPathLine;
    const bool has_label = place.kind == ControlKind::kEdit && before != nullptr &&
                           before->kind == ControlKind::kLabel && before->row == place.row;
    EXPECT_TRUE(has_caption || shows_text || has_label || !place.accessible_name.empty())
        << place.name;
    before = &place;
  }
}

TEST_P(Layouts, ControlsStandInsideTheWindow) {
  for_each_arrangement([](const Arrangement& places, const Box& window, int /*dpi*/) {
    for (std::size_t i = 0; i < places.controls.size(); ++i) {
      const Box& box = places.controls[i];
      SCOPED_TRACE(layout().controls[i].name);
      EXPECT_GT(box.width, 0);
      EXPECT_GT(box.height, 0);
      EXPECT_GE(box.left, 0);
      EXPECT_GE(box.top, 0);
      EXPECT_LE(box.right(), window.width);
      EXPECT_LE(box.bottom(), window.height);
    }
  });
}

TEST_P(Layouts, OnlyListsThatShareTheirPlaceByTabsOverlap) {
  for_each_arrangement([](const Arrangement& places, const Box&, int) {
    const auto controls = layout().controls;
    for (std::size_t i = 0; i < controls.size(); ++i) {
      for (std::size_t j = i + 1; j < controls.size(); ++j) {
        if (!controls[i].tab.empty() && !controls[j].tab.empty()) continue;
        EXPECT_FALSE(overlap(places.controls[i], places.controls[j]))
            << controls[i].name << " and " << controls[j].name;
      }
    }
  });
}

TEST_P(Layouts, NothingPackedIsNarrowerThanItsTableSays) {
  for_each_arrangement([](const Arrangement& places, const Box&, int dpi) {
    const auto controls = layout().controls;
    for (std::size_t i = 0; i < controls.size(); ++i) {
      if (controls[i].pack == Pack::kFill) continue;
      EXPECT_GE(places.controls[i].width, scaled(controls[i].width, dpi)) << controls[i].name;
    }
  });
}

TEST(FindLayout, KnowsNoTableForAWindowThatHasNone) { EXPECT_EQ(find_layout("Form9"), nullptr); }

}  // namespace
}  // namespace quillvane
