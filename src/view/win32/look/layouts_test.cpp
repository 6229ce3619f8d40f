// What holds for the table of each window.
#include "view/win32/look/layouts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

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
    fixture_.program->load_shortcut_window();
  }

  [[nodiscard]] const Window& window() const {
    const std::string name = GetParam();
    if (name == "Form1") return *ignored_;
    if (name == "Form2") return *list_;
    if (name == "Form4") return *type_;
    if (name == "Form5") return *entry_;
    if (name == "frmabout") return *about_;
    if (name == "Form3") return *fixture_.program->find_window(name);
    return fixture_.program->main_window();
  }
  [[nodiscard]] static const WindowLayout& layout() { return *find_layout(GetParam()); }

  // The window's own grid and those of its pages.
  [[nodiscard]] static std::vector<PageGrid> grids() {
    std::vector<PageGrid> all = {{{}, layout().rows, layout().columns, layout().controls}};
    for (const PageGrid& page : layout().page_set.pages) all.push_back(page);
    return all;
  }

  // At the sizes and resolutions that a layout has to stand: as the window opens, on a small
  // screen, and as small as it gets.
  template <typename Check>
  void for_each_arrangement(Check check) const {
    for (const PageGrid& grid : grids()) {
      SCOPED_TRACE(grid.frame);
      for_each_size(grid, check);
    }
  }
  template <typename Check>
  void for_each_size(const PageGrid& grid, Check check) const {
    const Box sizes[] = {{0, 0, layout().width, layout().height},
                         {0, 0, std::min(layout().width, 800), std::min(layout().height, 600)},
                         {0, 0, layout().least_width, layout().least_height}};
    for (const Box& size : sizes) {
      for (const int dpi : {96, 144, 192}) {
        const Box window{0, 0, scaled(size.width, dpi), scaled(size.height, dpi)};
        SCOPED_TRACE(std::to_string(size.width) + " x " + std::to_string(size.height) + " at " +
                     std::to_string(dpi));
        check(grid.controls, arrange(layout(), grid, window.width, window.height, dpi, {}), window,
              dpi);
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
                         testing::Values("Form7", "Form3", "Form1", "Form2", "Form4", "Form5",
                                         "frmabout"),
                         [](const auto& name) { return std::string(name.param); });

// Words of the view's own stand beside the control that they belong to.
bool is_caption(const ControlPlace& place) { return place.kind == ControlKind::kCaption; }

TEST_P(Layouts, NamesEachControlOfTheWindowOrSaysThatItIsNotDrawn) {
  std::set<std::string> drawn;
  for (const PageGrid& grid : grids()) {
    std::set<std::string> on_page;
    for (const ControlPlace& place : grid.controls) {
      if (is_caption(place)) continue;
      EXPECT_TRUE(on_page.emplace(place.name).second) << place.name << " twice on " << grid.frame;
      drawn.emplace(place.name);
    }
  }
  std::multiset<std::string> told(drawn.begin(), drawn.end());
  for (const std::string_view name : layout().undrawn) told.emplace(name);

  std::multiset<std::string> existing;
  for (const Control* control : window().controls()) existing.insert(control->name());

  EXPECT_EQ(told, existing);
}

TEST_P(Layouts, WhatItNamesElseIsThereToo) {
  for (const PageGrid& grid : grids()) {
    for (const ControlPlace& place : grid.controls) {
      if (place.page.empty()) continue;
      EXPECT_NE(window().find(place.page), nullptr) << place.page;
    }
    if (!grid.frame.empty()) {
      EXPECT_NE(dynamic_cast<Frame*>(window().find(grid.frame)), nullptr) << grid.frame;
    }
  }
  for (const KeyClick& key : layout().keys) {
    EXPECT_NE(dynamic_cast<Clickable*>(window().find(key.control)), nullptr) << key.control;
  }
  for (const ReadingClick& click : layout().reading_clicks) {
    Control* control = window().find(click.control);
    EXPECT_NE(control, nullptr) << click.control;
    EXPECT_EQ(dynamic_cast<Toolbar*>(control) != nullptr, click.button != 0) << click.control;
  }
  for (const AskedClick& asked : layout().asked_clicks) {
    EXPECT_NE(dynamic_cast<Button*>(window().find(asked.control)), nullptr) << asked.control;
    EXPECT_NE(dynamic_cast<ListView*>(window().find(asked.list)), nullptr) << asked.list;
  }
  if (!layout().title.empty()) {
    EXPECT_NE(dynamic_cast<Label*>(window().find(layout().title)), nullptr);
  }
  if (!layout().default_button.empty()) {
    EXPECT_NE(dynamic_cast<Button*>(window().find(layout().default_button)), nullptr);
  }
}

TEST_P(Layouts, WhatItNamesForTheTurnsOfItsPagesIsThereToo) {
  const PageSet& set = layout().page_set;
  if (set.empty()) return;
  EXPECT_NE(dynamic_cast<Button*>(window().find(set.first_page)), nullptr);
  EXPECT_NE(window().find(set.own_work), nullptr);
  EXPECT_NE(dynamic_cast<TextBox*>(window().find(set.pages_work)), nullptr);
  const auto is_page = [&set](std::string_view frame) {
    return std::any_of(set.pages.begin(), set.pages.end(),
                       [frame](const PageGrid& page) { return page.frame == frame; });
  };
  EXPECT_TRUE(is_page(set.shared_page));
  EXPECT_TRUE(is_page(set.run_page));
}

// As the view casts them; another kind would not be drawn.
bool fits(const Control& control, ControlKind kind) {
  const auto is = [&control]<typename Model>(std::type_identity<Model>) {
    return dynamic_cast<const Model*>(&control) != nullptr;
  };
  switch (kind) {
    case ControlKind::kToolbar:
      return is(std::type_identity<Toolbar>());
    case ControlKind::kTree:
      return is(std::type_identity<TreeView>());
    case ControlKind::kList:
    case ControlKind::kPictureList:
    case ControlKind::kPlainList:
      return is(std::type_identity<ListView>());
    case ControlKind::kTabs:
      return is(std::type_identity<Tabs>());
    case ControlKind::kButton:
    case ControlKind::kMainButton:
    case ControlKind::kTitleButton:
    case ControlKind::kLink:
      return is(std::type_identity<Clickable>());
    case ControlKind::kLabel:
    case ControlKind::kHeading:
    case ControlKind::kPathLabel:
      return is(std::type_identity<Label>());
    case ControlKind::kEdit:
    case ControlKind::kPathLine:
      return is(std::type_identity<TextBox>());
    case ControlKind::kOption:
      return is(std::type_identity<OptionButton>());
    case ControlKind::kCheckBox:
      return is(std::type_identity<CheckBox>());
    case ControlKind::kProgress:
      return is(std::type_identity<ProgressBar>());
    case ControlKind::kAnimation:
      return is(std::type_identity<Animation>());
    case ControlKind::kMark:
    case ControlKind::kPicture:
    case ControlKind::kCaption:
    case ControlKind::kNote:
      return true;
  }
  return false;
}

TEST_P(Layouts, EachControlIsOfTheKindThatItIsDrawnAs) {
  for (const PageGrid& grid : grids()) {
    for (const ControlPlace& place : grid.controls) {
      const Control* control = window().find(place.name);
      ASSERT_NE(control, nullptr) << place.name;
      EXPECT_TRUE(fits(*control, place.kind)) << place.name;
    }
  }
}

TEST_P(Layouts, TheLooksOfAListsColumnsAreThoseOfAllItsColumns) {
  for (const PageGrid& grid : grids()) {
    for (const ControlPlace& place : grid.controls) {
      if (place.column_looks.empty()) continue;
      const auto* list = dynamic_cast<const ListView*>(window().find(place.name));
      ASSERT_NE(list, nullptr) << place.name;
      EXPECT_EQ(place.column_looks.size(), list->columns().size()) << place.name;
      EXPECT_EQ(std::count(place.column_looks.begin(), place.column_looks.end(), 'w'), 1);
      EXPECT_EQ(place.column_looks.find_first_not_of("wntsb"), std::string_view::npos);
    }
  }
}

TEST_P(Layouts, WhatShowsNoTextHasAnAccessibleName) {
  for (const PageGrid& grid : grids()) {
    const ControlPlace* before = nullptr;
    for (const ControlPlace& place : grid.controls) {
      const auto* captioned = dynamic_cast<const Clickable*>(window().find(place.name));
      const bool has_caption = captioned != nullptr && !captioned->caption().empty();
      const bool shows_text =
          place.kind == ControlKind::kLabel || place.kind == ControlKind::kHeading ||
          place.kind == ControlKind::kPathLabel || place.kind == ControlKind::kPathLine;
      const bool has_label = place.kind == ControlKind::kEdit && before != nullptr &&
                             before->kind == ControlKind::kLabel && before->row == place.row;
      // The program gives it its caption when its list is shown.
      const bool is_captioned_later = place.name == "command331";
      EXPECT_TRUE(has_caption || shows_text || has_label || is_captioned_later ||
                  !place.accessible_name.empty())
          << place.name;
      before = &place;
    }
  }
}

using Places = std::span<const ControlPlace>;

TEST_P(Layouts, ControlsStandInsideTheWindow) {
  for_each_arrangement(
      [](Places controls, const Arrangement& places, const Box& window, int /*dpi*/) {
        for (std::size_t i = 0; i < controls.size(); ++i) {
          const Box& box = places.controls[i];
          SCOPED_TRACE(controls[i].name);
          EXPECT_GT(box.width, 0);
          EXPECT_GT(box.height, 0);
          EXPECT_GE(box.left, 0);
          EXPECT_GE(box.top, 0);
          EXPECT_LE(box.right(), window.width);
          EXPECT_LE(box.bottom(), window.height);
        }
      });
}

// Lists that the window or the program shows in turn.
bool take_turns(const ControlPlace& one, const ControlPlace& other) {
  if (!one.tab.empty() && !other.tab.empty()) return true;
  return one.kind == ControlKind::kPictureList && other.kind == one.kind && one.row == other.row;
}

TEST_P(Layouts, OnlyListsThatShareTheirPlaceByTabsAndPanelsThatTakeTurnsOverlap) {
  for_each_arrangement([](Places controls, const Arrangement& places, const Box&, int) {
    for (std::size_t i = 0; i < controls.size(); ++i) {
      for (std::size_t j = i + 1; j < controls.size(); ++j) {
        if (take_turns(controls[i], controls[j])) continue;
        if (layout().take_turns(controls[i], controls[j])) continue;
        EXPECT_FALSE(overlap(places.controls[i], places.controls[j]))
            << controls[i].name << " and " << controls[j].name;
      }
    }
  });
}

TEST_P(Layouts, WhatIsOnAllPagesOverlapsWithNoneOfThem) {
  for (const PageGrid& common : grids()) {
    if (layout().page_set.empty() || !common.frame.empty()) continue;
    const bool is_own = common.controls.data() == layout().controls.data();
    for_each_arrangement([&](Places controls, const Arrangement& places, const Box& window,
                             int dpi) {
      if (controls.data() == common.controls.data() || controls.data() == layout().controls.data())
        return;
      const Arrangement others = arrange(layout(), common, window.width, window.height, dpi, {});
      for (std::size_t i = 0; i < controls.size(); ++i) {
        for (std::size_t j = 0; j < common.controls.size(); ++j) {
          if (is_own && common.controls[j].row != 0) continue;  // they show on no page
          EXPECT_FALSE(overlap(places.controls[i], others.controls[j]))
              << controls[i].name << " and " << common.controls[j].name;
        }
      }
    });
  }
}

TEST_P(Layouts, TheTabsOfTwoJobsOverlapWithNothing) {
  const PageSet& set = layout().page_set;
  if (set.empty()) return;
  for_each_arrangement(
      [&set](Places controls, const Arrangement& places, const Box& window, int dpi) {
        const Box tabs = row_box(layout(), set.tab_row, window.width, window.height, dpi);
        EXPECT_GT(tabs.height, 0);
        for (std::size_t i = 0; i < controls.size(); ++i) {
          EXPECT_FALSE(overlap(places.controls[i], tabs)) << controls[i].name;
        }
      });
}

TEST_P(Layouts, NothingPackedIsNarrowerThanItsTableSays) {
  for_each_arrangement([](Places controls, const Arrangement& places, const Box&, int dpi) {
    for (std::size_t i = 0; i < controls.size(); ++i) {
      const Box& box = places.controls[i];
      const Pack pack = controls[i].pack;
      if (pack == Pack::kFill) continue;
      const int length = pack == Pack::kFromTop ? box.height : box.width;
      EXPECT_GE(length, scaled(controls[i].width, dpi)) << controls[i].name;
    }
  });
}

TEST(FindLayout, KnowsNoTableForAWindowThatHasNone) { EXPECT_EQ(find_layout("Form9"), nullptr); }

}  // namespace
}  // namespace quillvane
