// The window on a screen of a higher resolution: RUN_WINE_DPI tells the script which.
#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "platform/win32/wide_text.h"
#include "tests/windows/screen/junk_page.h"
#include "view/win32/look/arrange.h"
#include "view/win32/look/form7_layout.h"
#include "view/win32/screen.h"

namespace quillvane {
namespace {

using HighResolution = JunkPage;

constexpr int kFontPoints = 9;

std::string percent() { return std::to_string(dpi_of(nullptr) * 100 / kPlainDpi); }

TEST_F(HighResolution, TheWindowGrowsWithIt) {
  const RECT area = program_.area();
  ASSERT_GT(dpi_of(nullptr), kPlainDpi);

  EXPECT_EQ(area.right - area.left, scaled(form7_layout().width, dpi_of(nullptr)));
  EXPECT_EQ(area.bottom - area.top, scaled(form7_layout().height, dpi_of(nullptr)));
}

TEST_F(HighResolution, NoCaptionIsCut) {
  have_result();
  const FontOwner font = make_font(kFontPoints, FW_SEMIBOLD, dpi_of(nullptr));

  for (const char* name : {"Start", "Cancel", "Start Cleaning", "Select All", "Select None",
                           "Custom Search", "Ignore list", "Create Report"}) {
    RECT inside{};
    GetClientRect(program_.control(name), &inside);
    EXPECT_GT(inside.right, text_width(font.get(), widen(name).c_str())) << name;
    EXPECT_GT(inside.bottom, text_height(font.get())) << name;
  }
  keep_picture("window-" + percent() + "-percent", program_.area());
}

TEST_F(HighResolution, TheSmallWindowsGrowToo) {
  program_.click("Ignore list");
  HWND form = nullptr;
  ASSERT_TRUE(eventually("the ignore list",
                         [&] { return (form = program_.form("Ignore list")) != nullptr; }));

  const RECT area = area_of(form);
  EXPECT_EQ(area.right - area.left, scaled(560, dpi_of(nullptr)));
  keep_picture("ignore-list-" + percent() + "-percent", area);
  press_keys("Escape");
  ASSERT_TRUE(eventually("the end of the window", [form] { return IsWindow(form) == 0; }));
}

}  // namespace
}  // namespace quillvane
