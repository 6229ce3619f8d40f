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

// Whose icon it is.
constexpr int kOwner = 0;
void pass_over(int /*message*/) {}

TEST(Tray, TellsWhatTheMouseDoesByItsNumber) {
  std::vector<int> told;
  Win32Tray tray;
  tray.add(&kOwner, "Cleaner", [&told](int message) { told.push_back(message); });
  ASSERT_NE(tray_window(), nullptr);
  for (const LPARAM mouse : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_RBUTTONDBLCLK}) {
    tell_mouse(mouse);
  }
  EXPECT_EQ(told, (std::vector<int>{512, 513, 514, 518}));
}

TEST(Tray, TellsTheOwnerOfTheIconThatWasMeant) {
  constexpr int kOther = 0;
  std::vector<std::string> told;
  Win32Tray tray;
  tray.add(&kOwner, "Cleaner", [&told](int) { told.emplace_back("first"); });
  tray.add(&kOther, "Shortcuts", [&told](int) { told.emplace_back("second"); });
  SendMessageW(tray_window(), kTrayMessage, 2, WM_LBUTTONUP);
  SendMessageW(tray_window(), kTrayMessage, 1, WM_LBUTTONUP);
  tray.remove(&kOwner);
  SendMessageW(tray_window(), kTrayMessage, 1, WM_LBUTTONUP);
  SendMessageW(tray_window(), kTrayMessage, 2, WM_LBUTTONUP);
  EXPECT_EQ(told, (std::vector<std::string>{"second", "first", "second"}));
}

TEST(Tray, TheCallMayTakeTheIconAway) {
  std::vector<std::string> calls;
  Win32Tray tray;
  tray.add(&kOwner, "Cleaner",
           [&tray, &calls, name = std::string("a name of its own, kept by the call")](int) {
             tray.remove(&kOwner);
             calls.push_back(name);
           });
  tell_mouse(WM_LBUTTONDBLCLK);
  tell_mouse(WM_LBUTTONDBLCLK);
  EXPECT_EQ(calls, std::vector<std::string>{"a name of its own, kept by the call"});
}

TEST(Tray, ItsWindowIsNeverSeenAndHasNoTitle) {
  Win32Tray tray;
  tray.add(&kOwner, "Cleaner", pass_over);
  ASSERT_NE(tray_window(), nullptr);
  EXPECT_FALSE(IsWindowVisible(tray_window()));
  EXPECT_EQ(GetWindowTextLengthW(tray_window()), 0);
}

TEST(Tray, ItsWindowGoesWithIt) {
  {
    Win32Tray tray;
    tray.add(&kOwner, "Cleaner", pass_over);
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
  tray.modify(&kOwner, "not there yet");
  tray.remove(&kOwner);
  EXPECT_EQ(taskbar.take_requests(), Requests{});
  tray.add(&kOwner, "Cleaner", pass_over);
  EXPECT_EQ(taskbar.take_requests(), Requests{NIM_ADD});
  tray.modify(&kOwner, "Cleaner at work");
  EXPECT_EQ(taskbar.take_requests(), Requests{NIM_MODIFY});
  tray.remove(&kOwner);
  EXPECT_EQ(taskbar.take_requests(), Requests{NIM_DELETE});
  tray.remove(&kOwner);
  EXPECT_EQ(taskbar.take_requests(), Requests{});
}

TEST(TrayIcon, ItComesBackWithTheTaskbar) {
  if (!is_wine()) GTEST_SKIP() << "the taskbar of a real PC shows its icons to nobody";
  WineTaskbar taskbar;
  Win32Tray tray;
  const UINT created = RegisterWindowMessageW(L"TaskbarCreated");
  tray.add(&kOwner, "Cleaner", pass_over);
  SendMessageW(tray_window(), created, 0, 0);
  EXPECT_EQ(taskbar.take_requests(), (Requests{NIM_ADD, NIM_ADD}));
  tray.remove(&kOwner);
  SendMessageW(tray_window(), created, 0, 0);
  EXPECT_EQ(taskbar.take_requests(), Requests{NIM_DELETE});
}

TEST(TrayIcon, ItGoesWithTheTray) {
  if (!is_wine()) GTEST_SKIP() << "the taskbar of a real PC shows its icons to nobody";
  WineTaskbar taskbar;
  Win32Tray().add(&kOwner, "Cleaner", pass_over);
  EXPECT_EQ(taskbar.take_requests(), (Requests{NIM_ADD, NIM_DELETE}));
}

}  // namespace
}  // namespace quillvane
