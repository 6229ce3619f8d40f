#include "view/win32/look/form7_layout.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "tests/support/scan_fixture.h"
#include "view/win32/look/arrange.h"

namespace quillvane {
namespace {

TEST(Form7Layout, EachButtonOfTheToolBarHasAHintAndNoSeparatorHasOne) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  std::set<int> hinted;
  for (const ToolbarHint& hint : form7_layout().hints) hinted.insert(hint.button);

  for (int number = 1; number <= form.Toolbar1.count(); ++number) {
    EXPECT_EQ(hinted.contains(number), !form.Toolbar1.button(number)->separator) << number;
  }
}

TEST(Form7Layout, OnlyCancelAndCloseEndTheReadingOfATree) {
  const WindowLayout& layout = form7_layout();
  EXPECT_EQ(layout.while_reading("cmd_cancel"), WhileReading::kEndsIt);
  EXPECT_EQ(layout.while_reading("Toolbar1", 7), WhileReading::kEndsIt);
  EXPECT_EQ(layout.while_reading("orvbutton10"), WhileReading::kEndsIt);
  EXPECT_EQ(layout.while_reading("chameleonButton9"), WhileReading::kEndsIt);
  EXPECT_EQ(layout.while_reading("chameleonButton12"), WhileReading::kActsNow);
  for (const ControlPlace& place : layout.controls) {
    if (place.name.starts_with("cmd_") && place.name != "cmd_cancel") {
      EXPECT_EQ(layout.while_reading(place.name), WhileReading::kWaits) << place.name;
    }
  }
  EXPECT_EQ(layout.while_reading("Toolbar1", 6), WhileReading::kWaits);
}

TEST(Form7Layout, TheTreeIsOnTheLeftTheListsOnTheRightTheSummaryBelow) {
  const auto controls = form7_layout().controls;
  const auto box_of = [&](const Arrangement& places, std::string_view name) {
    const auto found = std::find_if(controls.begin(), controls.end(),
                                    [name](const auto& place) { return place.name == name; });
    return places.controls[static_cast<std::size_t>(found - controls.begin())];
  };
  for (const int width : {740, 800, 960, 1920}) {
    SCOPED_TRACE(width);
    const Arrangement places = arrange(form7_layout(), width, 600, kPlainDpi, {});
    const Box tree = box_of(places, "Tv1");
    const Box list = box_of(places, "view5");
    EXPECT_LT(tree.right(), list.left);
    EXPECT_EQ(tree.bottom(), list.bottom());
    EXPECT_GT(box_of(places, "Label11").top, tree.bottom());
  }
}

}  // namespace
}  // namespace quillvane
