// The window as it opens.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <set>

#include "tests/windows/screen/junk_page.h"

namespace quillvane {
namespace {

using FreshPage = JunkPage;

constexpr COLORREF kSuiteBlue = 10118205;

HWND focused(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
  return info.hwndFocus;
}

TEST_F(FreshPage, ShowsTheTreeOfTheCatalogue) {
  const std::vector<ScreenNode> nodes = program_.nodes();

  ASSERT_EQ(nodes.size(), 24U);
  EXPECT_EQ(nodes[0].text, "Windows");
  EXPECT_EQ(nodes[1].text, "System Temporary");
  EXPECT_EQ(nodes[9].text, "Windows Updates & installer");
  EXPECT_EQ(nodes[11].text, "Browsers");
  EXPECT_EQ(nodes[13].text, "Mozila Firefox Cache");
  EXPECT_EQ(nodes[23].text, "Custom Files and Folders");
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    EXPECT_EQ(nodes[i].bold, i == 0 || i == 11 || i == 23) << nodes[i].text;
    EXPECT_FALSE(nodes[i].ticked) << nodes[i].text;
  }
  keep_picture("window-fresh", program_.area());
}

TEST_F(FreshPage, TheToolBarIsThatOfTheStart) {
  for (int button = 1; button <= 16; ++button) {
    EXPECT_EQ(program_.tool_hidden(button), button <= 4) << button;
  }
  for (const int button : {5, 12, 13, 16}) EXPECT_TRUE(program_.tool_enabled(button)) << button;
  for (const int button : {6, 7, 9, 10, 14}) EXPECT_FALSE(program_.tool_enabled(button)) << button;
}

TEST_F(FreshPage, TheCommandsAreThoseOfTheStart) {
  for (const char* name : {"Start", "Custom Search", "Ignore list"}) {
    EXPECT_TRUE(program_.is_enabled(name)) << name;
  }
  for (const char* name :
       {"Cancel", "Start Cleaning", "Select All", "Select None", "Create Report"}) {
    EXPECT_FALSE(program_.is_enabled(name)) << name;
  }
}

TEST_F(FreshPage, TheTitleBarHasTheSuitesColour) {
  const RECT window = program_.area();
  EXPECT_TRUE(shows_color({window.left + 300, window.top + 2, window.left + 340, window.top + 20},
                          kSuiteBlue));
}

TEST_F(FreshPage, EachControlHasAnAccessibleName) {
  int without_name = 0;
  for (const HWND control : program_.controls()) {
    if (GetParent(control) != program_.window() || IsWindowVisible(control) == 0) continue;
    if (text_of(control).empty()) ++without_name;
  }
  EXPECT_EQ(without_name, 1);  // the summary, which says nothing before the first scan
}

TEST_F(FreshPage, TabGoesThroughAllControlsThatCanBeUsed) {
  std::set<HWND> wanted;
  for (const HWND control : program_.controls()) {
    const bool can_be_used = GetParent(control) == program_.window() &&
                             IsWindowVisible(control) != 0 && IsWindowEnabled(control) != 0 &&
                             (GetWindowLongW(control, GWL_STYLE) & WS_TABSTOP) != 0;
    if (can_be_used) wanted.insert(control);
  }
  ASSERT_TRUE(eventually("a focus", [this] { return focused(program_.window()) != nullptr; }));

  std::set<HWND> reached;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    const HWND before = focused(program_.window());
    reached.insert(before);
    press_keys("Tab");
    ASSERT_TRUE(eventually("the next focus", [&] { return focused(program_.window()) != before; }));
  }

  EXPECT_EQ(reached, wanted);
}

}  // namespace
}  // namespace quillvane
