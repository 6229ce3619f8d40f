// The icon in the notification area.
#include <gtest/gtest.h>
#include <windows.h>

#include <shellapi.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32/win32_tray.h"
#include "tests/windows/wine.h"

namespace quillvane {
namespace {

// The window that the last tray made for itself.
HWND tray_window() { return FindWindowW(kTrayWindowClass, nullptr); }

// What Windows tells it of the mouse.
void tell_mouse(LPARAM mouse) { SendMessageW(tray_window(), kTrayMessage, 1, mouse); }

TEST(Tray, ADoubleClickOfEitherButtonCalls) {
  int calls = 0;
  Win32Tray tray;
  tray.add("Cleaner", [&calls] { ++calls; });
  ASSERT_NE(tray_window(), nullptr);
  tell_mouse(WM_LBUTTONDBLCLK);
  EXPECT_EQ(calls, 1);
  tell_mouse(WM_RBUTTONDBLCLK);
  EXPECT_EQ(calls, 2);
}

TEST(Tray, OtherMovesOfTheMouseDoNothing) {
  int calls = 0;
  Win32Tray tray;
  tray.add("Cleaner", [&calls] { ++calls; });
  for (const LPARAM mouse : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDOWN,
                             WM_RBUTTONUP, WM_MBUTTONDBLCLK}) {
    tell_mouse(mouse);
  }
  EXPECT_EQ(calls, 0);
}

TEST(Tray, TheCallMayTakeTheIconAway) {
  std::vector<std::string> calls;
  Win32Tray tray;
  tray.add("Cleaner", [&tray, &calls, name = std::string("a name of its own, kept by the call")] {
    tray.remove();
    calls.push_back(name);
  });
  tell_mouse(WM_LBUTTONDBLCLK);
  tell_mouse(WM_LBUTTONDBLCLK);
  EXPECT_EQ(calls, std::vector<std::string>{"a name of its own, kept by the call"});
}

TEST(Tray, ItsWindowIsNeverSeenAndHasNoTitle) {
  Win32Tray tray;
  tray.add("Cleaner", [] {});
  ASSERT_NE(tray_window(), nullptr);
  EXPECT_FALSE(IsWindowVisible(tray_window()));
  EXPECT_EQ(GetWindowTextLengthW(tray_window()), 0);
}

TEST(Tray, ItsWindowGoesWithIt) {
  {
    Win32Tray tray;
    tray.add("Cleaner", [] {});
    EXPECT_NE(tray_window(), nullptr);
  }
  EXPECT_EQ(tray_window(), nullptr);
}

// Plays the taskbar, which is told of icons by WM_COPYDATA, with what is asked for (NIM_ADD and so
// on) as the number beside the data. That number is Wine's way; Windows has another.
class WineTaskbar {
 public:
  WineTaskbar() {
    WNDCLASSW window_class{};
    window_class.lpfnWndProc = &WineTaskbar::procedure;
    window_class.lpszClassName = kClass;
    RegisterClassW(&window_class);
    window_ =
        CreateWindowExW(0, kClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  }
  ~WineTaskbar() {
    DestroyWindow(window_);
    UnregisterClassW(kClass, nullptr);
  }
  WineTaskbar(const WineTaskbar&) = delete;
  WineTaskbar& operator=(const WineTaskbar&) = delete;

  [[nodiscard]] std::vector<ULONG_PTR> take_requests() { return std::exchange(requests_, {}); }

 private:
  static constexpr const wchar_t* kClass = L"Shell_TrayWnd";

  static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
    auto* taskbar = reinterpret_cast<WineTaskbar*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (taskbar == nullptr || message != WM_COPYDATA) return DefWindowProcW(window, message, w, l);
    taskbar->requests_.push_back(reinterpret_cast<const COPYDATASTRUCT*>(l)->dwData);
    return TRUE;
  }

  HWND window_;
  std::vector<ULONG_PTR> requests_;
};

using Requests = std::vector<ULONG_PTR>;

TEST(TrayIcon, TheTaskbarIsAskedToAddChangeAndRemoveIt) {
  if (!is_wine()) GTEST_SKIP() << "the taskbar of a real PC shows its icons to nobody";
  WineTaskbar taskbar;
  Win32Tray tray;
  tray.modify("not there yet");
  tray.remove();
  EXPECT_EQ(taskbar.take_requests(), Requests{});
  tray.add("Cleaner", [] {});
  EXPECT_EQ(taskbar.take_requests(), Requests{NIM_ADD});
  tray.modify("Cleaner at work");
  EXPECT_EQ(taskbar.take_requests(), Requests{NIM_MODIFY});
  tray.remove();
  EXPECT_EQ(taskbar.take_requests(), Requests{NIM_DELETE});
  tray.remove();
  EXPECT_EQ(taskbar.take_requests(), Requests{});
}

TEST(TrayIcon, ItComesBackWithTheTaskbar) {
  if (!is_wine()) GTEST_SKIP() << "the taskbar of a real PC shows its icons to nobody";
  WineTaskbar taskbar;
  Win32Tray tray;
  const UINT created = RegisterWindowMessageW(L"TaskbarCreated");
  tray.add("Cleaner", [] {});
  SendMessageW(tray_window(), created, 0, 0);
  EXPECT_EQ(taskbar.take_requests(), (Requests{NIM_ADD, NIM_ADD}));
  tray.remove();
  SendMessageW(tray_window(), created, 0, 0);
  EXPECT_EQ(taskbar.take_requests(), Requests{NIM_DELETE});
}

TEST(TrayIcon, ItGoesWithTheTray) {
  if (!is_wine()) GTEST_SKIP() << "the taskbar of a real PC shows its icons to nobody";
  WineTaskbar taskbar;
  Win32Tray().add("Cleaner", [] {});
  EXPECT_EQ(taskbar.take_requests(), (Requests{NIM_ADD, NIM_DELETE}));
}

}  // namespace
}  // namespace quillvane
