// The program's icon in the notification area of this PC.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>

#include "platform/tray.h"

namespace quillvane {

// The class of the tray's own window, and the message by which Windows tells it what the mouse does
// with the icon (in lParam).
inline constexpr wchar_t kTrayWindowClass[] = L"QuillvaneTray";
inline constexpr UINT kTrayMessage = WM_APP + 1;

// Windows tells a window what happens to the icon. This object has one of its own, which is never
// shown; it lives on the thread that adds the icon first, and on no other may the calls be made.
class Win32Tray final : public Tray {
 public:
  Win32Tray() = default;
  ~Win32Tray() override;
  Win32Tray(const Win32Tray&) = delete;
  Win32Tray& operator=(const Win32Tray&) = delete;

  void add(const std::string& tip, std::function<void()> double_click) override;
  void modify(const std::string& tip) override;
  void remove() override;

 private:
  struct DestroyTheWindow {
    void operator()(HWND window) const { DestroyWindow(window); }
  };

  static LRESULT CALLBACK window_procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  void make_window();
  void handle(UINT message, LPARAM l);
  void show();

  std::unique_ptr<HWND__, DestroyTheWindow> window_;
  std::wstring tip_;
  std::function<void()> double_click_;
  bool is_shown_ = false;
};

}  // namespace quillvane
