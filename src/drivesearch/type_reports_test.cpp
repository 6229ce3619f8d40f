// What the rows of the summary by type do with the hits.
#include <gtest/gtest.h>

#include "tests/support/search_fixture.h"

namespace quillvane {
namespace {

// The window with a summary of two types and the closing row, and with hits.
struct Summary : SearchFixture {
  Summary() {
    add_types({{"Temp", "*.tmp", true}, {"Log", "*.LOG", true}});
    for (const char* path : {"C:\\a.tmp", "C:\\b.TMP", "C:\\c.log", "C:\\d.doc"}) {
      machine.add_file(path, 100);
    }
    start();
    form().Command1.click();
    form().search.findfiles("C:", "?.tmp|?.log|?.doc");
  }
  Form7& form() { return program->main_window(); }
};

TEST(View1000, ATickTicksTheHitsOfItsType) {
  Summary summary;
  Form7& form = summary.form();
  form.view1.check_all(false);
  form.View1000.tick_row(2, false);
  form.View1000.tick_row(2, true);
  EXPECT_EQ(ticked(form.view1), std::vector{3});
  form.View1000.tick_row(1, false);
  form.View1000.tick_row(1, true);
  EXPECT_EQ(ticked(form.view1), (std::vector{1, 2, 3}));
  form.View1000.tick_row(2, false);
  EXPECT_EQ(ticked(form.view1), (std::vector{1, 2}));
}

TEST(View1000, TheClosingRowAndAnEmptyPatternTickNothing) {
  Summary summary;
  Form7& form = summary.form();
  form.view1.check_all(false);
  form.View1000.tick_row(3, true);
  form.View1000.set_sub_item(1, 1, "");
  form.View1000.tick_row(1, false);
  form.View1000.tick_row(1, true);
  EXPECT_EQ(ticked(form.view1), std::vector<int>{});
}

TEST(View1000, ServesTheLoopForEachHit) {
  Summary summary;
  int served = 0;
  summary.machine.loop().set_served_hook([&] { ++served; });
  summary.form().View1000.tick_row(1, false);
  EXPECT_EQ(served, 4);
}

TEST(View1000, ADoubleClickNeedsACount) {
  Summary summary;
  Form7& form = summary.form();
  form.View4.hide();
  form.View1000.click_row(1);
  form.View1000.double_click(1);
  EXPECT_FALSE(form.View4.visible());
  EXPECT_EQ(form.Text10.text(), "");
}

TEST(Command2, CountsTheHitsByType) {
  Summary summary;
  Form7& form = summary.form();
  form.Command2.click();
  EXPECT_EQ(rows(form.View1000, 2), (Texts{"2", "1", "4"}));
  EXPECT_EQ(rows(form.View1000, 3), (Texts{"200", "100", "400"}));
  EXPECT_EQ(form.Label5.caption(), "Checking Files 2   3");
}

TEST(View1000, ADoubleClickShowsTheHitsOfTheType) {
  Summary summary;
  Form7& form = summary.form();
  form.Command2.click();
  form.View1000.click_row(1);
  form.View1000.double_click(1);
  EXPECT_EQ(form.Text10.text(), "Temp");
  EXPECT_EQ(rows(form.View4), (Texts{"C:\\a.tmp", "C:\\b.TMP"}));
  EXPECT_EQ(rows(form.View4, 1), (Texts{"100", "100"}));
  EXPECT_EQ(form.View4.sub_item(1, 2), form.view1.sub_item(1, 2));
  EXPECT_TRUE(form.View4.visible());
  EXPECT_TRUE(form.View4.selected(1));
  EXPECT_FALSE(form.View1000.visible());
  EXPECT_EQ(form.Text8.text(), "1");
  EXPECT_FALSE(form.orvbutton2.enabled());
  EXPECT_FALSE(form.orvbutton3.enabled());
  form.View4.click_row(2);
  EXPECT_EQ(form.Text8.text(), "2");
}

TEST(View1000, TheClosingRowShowsNoHits) {
  Summary summary;
  Form7& form = summary.form();
  form.Command2.click();
  form.View4.add("old");
  form.View1000.click_row(3);
  form.View1000.double_click(3);
  EXPECT_EQ(form.Text10.text(), "System Temporary Folders");
  EXPECT_EQ(form.View4.count(), 0);
  EXPECT_EQ(form.Text8.text(), "1");
}

}  // namespace
}  // namespace quillvane
