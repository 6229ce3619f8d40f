// The program's icons in the notification area of this PC: one for each of its windows that waits
// there.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/tray.h"

namespace quillvane {

// The class of the tray's own window, and the message by which Windows tells it what the mouse does
// with an icon (in lParam; wParam is the icon's number).
inline constexpr wchar_t kTrayWindowClass[] = L"QuillvaneTray";
inline constexpr UINT kTrayMessage = WM_APP + 1;

// Windows tells a window what happens to the icons. This object has one of its own, which is never
// shown; it lives on the thread that adds the first, and on no other may the calls be made.
class Win32Tray final : public Tray {
 public:
  Win32Tray() = default;
  ~Win32Tray() override;
  Win32Tray(const Win32Tray&) = delete;
  Win32Tray& operator=(const Win32Tray&) = delete;

  void add(const void* owner, const std::string& tip,
           std::function<void(int message)> mouse) override;
  void modify(const void* owner, const std::string& tip) override;
  void remove(const void* owner) override;

 private:
  struct DestroyTheWindow {
    void operator()(HWND window) const { DestroyWindow(window); }
  };

  struct Icon {
    UINT number = 0;
    std::wstring tip;
    std::function<void(int message)> mouse;
  };

  static LRESULT CALLBACK window_procedure(HWND window, UINT message, WPARAM w, LPARAM l);
  void make_window();
  void handle(UINT message, WPARAM w, LPARAM l);
  void show(const Icon& icon);
  void take_away(const Icon& icon);

  std::unique_ptr<HWND__, DestroyTheWindow> window_;
  std::map<const void*, Icon> icons_;  // by owner
  UINT last_number_ = 0;
};

}  // namespace quillvane
