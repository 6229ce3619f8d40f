// The window on a Windows in high contrast.
#include "tests/windows/screen/high_contrast.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <vector>

#include "support/suite_color.h"
#include "tests/windows/screen/hand.h"
#include "tests/windows/screen/planted_junk.h"
#include "view/win32/look/form7_layout.h"
#include "view/win32/look/theme.h"
#include "view/win32/screen.h"

namespace quillvane {
namespace {

// What the program draws with elsewhere.
std::set<COLORREF> own_colors() {
  const Theme theme = make_theme(kSuiteColor, system_colors(), /*high_contrast=*/false);
  return {theme.title,
          theme.page,
          theme.text,
          theme.border,
          theme.button_over,
          theme.button_pressed,
          theme.disabled_text,
          theme.box_edge,
          theme.focus,
          192,   // a node in which something was found
          128};  // the mark beside the summary
}

// What the program draws itself: the title, texts of nodes and rows, and the page below them. Its
// pictures keep their colours, as all pictures do.
std::vector<RECT> drawn_areas(const ProgramOnScreen& program) {
  const RECT window = program.area();
  const std::vector<ScreenNode> nodes = program.nodes();
  const RECT first = program.node_area(nodes[1]);
  const RECT last = program.node_area(nodes[10]);
  const HWND list = program.control("Files of the category");
  const RECT row = program.row_area(list, 0);
  const RECT rows = area_of(list);
  return {
      {window.left + 40, window.top, window.right, window.top + form7_layout().rows.front().length},
      {first.left, first.top, first.left + 200, last.bottom},
      {row.left, row.top, rows.right, rows.bottom},
      {window.left, area_of(program.control("Select All")).top, window.right, window.bottom}};
}

std::set<COLORREF> own_colors_in(const ProgramOnScreen& program) {
  const std::set<COLORREF> own = own_colors();
  std::set<COLORREF> both;
  for (const RECT& area : drawn_areas(program)) {
    const std::set<COLORREF> shown = colors_in(area);
    std::set_intersection(own.begin(), own.end(), shown.begin(), shown.end(),
                          std::inserter(both, both.begin()));
  }
  return both;
}

TEST(HighContrast, NoColourOfTheProgramsOwnRemains) {
  const HighContrastColors colors;
  const PlantedJunk junk;
  const ProgramOnScreen program;
  PostMessageW(program.control("Start"), BM_CLICK, 0, 0);
  ASSERT_TRUE(eventually("a summary", [&] {
    return !program.text_beginning("Junk files found").empty() && !program.is_enabled("Cancel");
  }));
  const RECT window = program.area();
  const RECT title{window.left + 300, window.top + 2, window.left + 340, window.top + 20};
  ASSERT_TRUE(shows_color(title, kSuiteColor));

  const HighContrastSwitch on(program);

  ASSERT_TRUE(eventually("the system's colours", [&] {
    return shows_color(area_of(program.control("Start")), GetSysColor(COLOR_BTNTEXT));
  }));
  EXPECT_EQ(own_colors_in(program), std::set<COLORREF>());
  EXPECT_TRUE(shows_color(title, GetSysColor(COLOR_HIGHLIGHT)));
  keep_picture("window-high-contrast", program.area());
}

}  // namespace
}  // namespace quillvane
