#include "view/win32/window_shadows.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

// A window without a border at (200, 100), 300 wide and 150 high.
class HostWindow {
 public:
  HostWindow()
      : window_(CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 200, 100, 300, 150,
                                nullptr, nullptr, GetModuleHandleW(nullptr), nullptr)) {}
  ~HostWindow() { destroy(); }
  HostWindow(const HostWindow&) = delete;
  HostWindow& operator=(const HostWindow&) = delete;

  [[nodiscard]] HWND get() const { return window_; }
  [[nodiscard]] HWND shadow() const { return static_cast<HWND>(GetPropW(window_, kShadowName)); }
  void destroy() {
    if (window_ != nullptr) DestroyWindow(window_);
    window_ = nullptr;
  }

 private:
  HWND window_;
};

RECT place_of(HWND window) {
  RECT rect{};
  GetWindowRect(window, &rect);
  return rect;
}

void expect_around(HWND shadow, HWND host, int size) {
  const RECT inner = place_of(host);
  const RECT outer = place_of(shadow);
  EXPECT_EQ(outer.left, inner.left - size);
  EXPECT_EQ(outer.top, inner.top - size);
  EXPECT_EQ(outer.right, inner.right + size);
  EXPECT_EQ(outer.bottom, inner.bottom + size);
}

TEST(WindowShadows, LieAroundTheirWindowAndTakeNoClick) {
  HostWindow host;
  WindowShadows shadows;
  shadows.create(host.get());
  ASSERT_NE(host.shadow(), nullptr);
  expect_around(host.shadow(), host.get(), 40);
  EXPECT_NE(IsWindowVisible(host.shadow()), FALSE);
  const auto styles = static_cast<DWORD>(GetWindowLongW(host.shadow(), GWL_EXSTYLE));
  EXPECT_EQ(styles & 0x800A0U, 0x800A0U);
  EXPECT_EQ(GetWindowLongW(host.shadow(), 0), 40);
  EXPECT_EQ(GetWindowLongW(host.shadow(), 4), 0xFF0000);
  EXPECT_EQ(GetWindowLongW(host.shadow(), 8), 25);
  EXPECT_EQ(GetWindowLongW(host.shadow(), 12), 50);
  shadows.remove(host.get());
}

TEST(WindowShadows, FollowTheirWindow) {
  HostWindow host;
  WindowShadows shadows;
  shadows.create(host.get());
  shadows.set_color(host.get(), 0x808080);
  shadows.set_size(host.get(), 5);
  expect_around(host.shadow(), host.get(), 5);
  SetWindowPos(host.get(), nullptr, 10, 20, 400, 90, SWP_NOZORDER | SWP_NOACTIVATE);
  expect_around(host.shadow(), host.get(), 5);
  ShowWindow(host.get(), SW_HIDE);
  EXPECT_EQ(IsWindowVisible(host.shadow()), FALSE);
  ShowWindow(host.get(), SW_SHOWNA);
  EXPECT_NE(IsWindowVisible(host.shadow()), FALSE);
  shadows.remove(host.get());
}

TEST(WindowShadows, GoWithTheirWindow) {
  HostWindow host;
  WindowShadows shadows;
  shadows.create(host.get());
  const HWND first = host.shadow();
  shadows.remove(host.get());
  EXPECT_EQ(IsWindow(first), FALSE);
  EXPECT_EQ(host.shadow(), nullptr);
  shadows.create(host.get());
  const HWND second = host.shadow();
  host.destroy();
  EXPECT_EQ(IsWindow(second), FALSE);
}

}  // namespace
}  // namespace quillvane
