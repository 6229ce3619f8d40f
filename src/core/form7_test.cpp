// What the main window is at design time.
#include "core/form7.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

struct ToolCase {
  int number;
  int image;  // 0: a separator
  bool visible;
  bool enabled;
};

constexpr ToolCase kTools[] = {
    {1, 1, false, true},  {2, 2, false, true},  {3, 3, false, true},  {5, 4, true, true},
    {6, 10, true, false}, {7, 5, true, false},  {9, 6, true, false},  {10, 7, true, false},
    {12, 11, true, true}, {13, 12, true, true}, {14, 8, true, false}, {16, 13, true, true},
};

TEST(Form7, TheToolBarHasSixteenButtons) {
  ScanFixture fixture;
  const Toolbar& bar = fixture.start().Toolbar1;
  EXPECT_EQ(bar.count(), 16);
  for (const ToolCase& tool : kTools) {
    EXPECT_EQ(bar.button(tool.number)->image, tool.image) << tool.number;
    EXPECT_EQ(bar.button(tool.number)->visible, tool.visible) << tool.number;
    EXPECT_EQ(bar.button(tool.number)->enabled, tool.enabled) << tool.number;
  }
  for (const int separator : {4, 8, 11, 15}) {
    EXPECT_TRUE(bar.button(separator)->separator) << separator;
  }
  EXPECT_FALSE(bar.button(4)->visible);
}

struct CaptionCase {
  const char* control;
  const char* caption;
};

constexpr CaptionCase kCaptions[] = {
    {"cmd_start", "Start"},          {"cmd_clean", "Start Cleaning"},
    {"cmd_all", "Select All"},       {"cmd_non", "Select None"},
    {"cmd_custom", "Custom Search"}, {"cmd_ignore", "Ignore list"},
    {"cmd_report", "Create Report"}, {"scf", "Scan"},
    {"stc", "Start Cleaning"},
};

TEST(Form7, ItsCommandsAreNamed) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  for (const auto& [control, caption] : kCaptions) {
    ASSERT_NE(form.find(control), nullptr) << control;
    EXPECT_EQ(form.find(control)->property("Caption"), PropertyValue(caption)) << control;
  }
}

TEST(Form7, TheHitListsHaveThreeHeadersAndAHiddenColumn) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  EXPECT_EQ(form.view1.columns(), (Texts{"File Name", "Size", "Date"}));
  EXPECT_EQ(form.view5.columns(), (Texts{"File Name", "Size", "Date"}));
}

TEST(Form7, ItsFieldsAreReadByTheirNames) {
  ScanFixture fixture;
  fixture.add_program_file("ignore.tdw", "C:\\Temp\\\r\n");
  Form7& form = fixture.start("x");
  form.totals.totalfiles = 12;
  form.totals.catsize = 0.5;
  EXPECT_EQ(form.field("cmdline"), PropertyValue("x"));
  EXPECT_EQ(form.field("ignorelist"), PropertyValue("c:\\temp\\|"));
  EXPECT_EQ(form.field("totalfiles"), PropertyValue(std::int64_t{12}));
  EXPECT_EQ(form.field("catsize"), PropertyValue(0.5));
  EXPECT_EQ(form.field("custnode"), PropertyValue(std::int64_t{25}));
  EXPECT_EQ(form.field("CommandLineGiven"), PropertyValue(true));
  EXPECT_EQ(form.field("Is64Bit"), PropertyValue(false));
  EXPECT_EQ(form.field("HiddenRun"), PropertyValue(std::int64_t{0}));
}

TEST(Form7, EveryStatedFieldIsThere) {
  ScanFixture fixture;
  const Form7& form = fixture.start();
  for (const char* name :
       {"cmdline",    "silentmode", "cleanmode", "suitemode",  "forceclean", "cancelflag",
        "ignorelist", "selnode",    "listfocus", "wizardstep", "custnode",   "catfiles",
        "catsize",    "winfiles",   "winsize",   "brfiles",    "brsize",     "custfiles",
        "custsize",   "totalfiles", "totalsize"}) {
    EXPECT_TRUE(form.field(name).has_value()) << name;
  }
}

TEST(Form7, APopUpComesUpOnTheTreeAndOnListsWithRows) {
  ScanFixture fixture;
  Form7& form = fixture.start();
  EXPECT_EQ(form.Tv1.right_click(), &form.sc);
  EXPECT_EQ(form.view1.right_click(), nullptr);
  add_hit(form.view1, "C:\\a.tmp", 2);
  EXPECT_EQ(form.view1.right_click(), &form.b);
  EXPECT_EQ(form.view5.right_click(), nullptr);
}

}  // namespace
}  // namespace quillvane
