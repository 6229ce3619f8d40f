// The window on a screen that is smaller than it would like.
#include <gtest/gtest.h>

#include "tests/windows/screen/junk_page.h"

namespace quillvane {
namespace {

using SmallScreen = JunkPage;

bool is_inside(const RECT& inner, const RECT& outer) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

TEST_F(SmallScreen, TheWindowAndAllItsControlsFitIt) {
  const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  scan();

  EXPECT_TRUE(is_inside(program_.area(), screen));
  for (const HWND control : program_.controls()) {
    if (GetParent(control) != program_.window() || IsWindowVisible(control) == 0) continue;
    EXPECT_TRUE(is_inside(area_of(control), program_.area())) << text_of(control);
  }
  keep_picture("window-small-screen", program_.area());
}

}  // namespace
}  // namespace quillvane
