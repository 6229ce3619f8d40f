#include "view/win32/look/form3_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "tests/support/shortcut_fixture.h"
#include "view/win32/look/arrange.h"

namespace quillvane {
namespace {

Box box_of(const Arrangement& places, std::string_view name) {
  const auto controls = form3_layout().controls;
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [name](const auto& place) { return place.name == name; });
  return places.controls[static_cast<std::size_t>(found - controls.begin())];
}

TEST(Form3Layout, EachButtonOfTheToolBarHasAHintAndNoSeparatorHasOne) {
  ShortcutFixture fixture;
  const Form3& form = fixture.start();
  std::set<int> hinted;
  for (const ToolbarHint& hint : form3_layout().hints) hinted.insert(hint.button);

  for (int number = 1; number <= form.Toolbar1.count(); ++number) {
    EXPECT_EQ(hinted.contains(number), !form.Toolbar1.button(number)->separator) << number;
  }
}

TEST(Form3Layout, OnlyCancelAndCloseEndTheReadingOfATree) {
  const WindowLayout& layout = form3_layout();
  EXPECT_EQ(layout.while_reading("cmd_cancel"), WhileReading::kEndsIt);
  EXPECT_EQ(layout.while_reading("Toolbar1", 5), WhileReading::kEndsIt);
  EXPECT_EQ(layout.while_reading("chameleonButton9"), WhileReading::kEndsIt);
  EXPECT_EQ(layout.while_reading("chameleonButton12"), WhileReading::kActsNow);
  EXPECT_EQ(layout.while_reading("cmd_delete"), WhileReading::kWaits);
  EXPECT_EQ(layout.while_reading("Toolbar1", 4), WhileReading::kWaits);
}

TEST(Form3Layout, ThePanelsTakeTheSamePlace) {
  const Arrangement places = arrange(form3_layout(), 900, 560, kPlainDpi, {});
  const Box drives = box_of(places, "View2");
  for (const char* name : {"Label88(6)", "view1"}) {
    const Box other = box_of(places, name);
    EXPECT_EQ(other.left, drives.left) << name;
    EXPECT_EQ(other.top, drives.top) << name;
    EXPECT_EQ(other.width, drives.width) << name;
    EXPECT_EQ(other.height, drives.height) << name;
  }
}

TEST(Form3Layout, WhereToLookHidesTheProgressBehindIt) {
  EXPECT_LT(form3_layout().stacked("Frame2"), form3_layout().stacked("Frame8"));
  EXPECT_GE(form3_layout().stacked("Frame2"), 0);
  EXPECT_EQ(form3_layout().stacked("Frame5"), -1);
}

}  // namespace
}  // namespace quillvane
