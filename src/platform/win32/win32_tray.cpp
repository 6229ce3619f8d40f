#include "platform/win32/win32_tray.h"

#include <shellapi.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

constexpr WORD kProgramIcon = 1;  // number among the program's resources

// What the taskbar tells everybody when it has begun anew, without any icon.
UINT taskbar_created_message() {
  static const UINT message = RegisterWindowMessageW(L"TaskbarCreated");
  return message;
}

HICON program_icon() {
  const HICON own = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(kProgramIcon));
  return own != nullptr ? own : LoadIconW(nullptr, IDI_APPLICATION);
}

NOTIFYICONDATAW icon_of(HWND window, UINT number) {
  NOTIFYICONDATAW icon{};
  icon.cbSize = sizeof(icon);
  icon.hWnd = window;
  icon.uID = number;
  return icon;
}

void set_tip(NOTIFYICONDATAW& icon, const std::wstring& tip) {
  icon.uFlags |= NIF_TIP;
  const std::size_t length = std::min(tip.size(), std::size(icon.szTip) - 1);
  std::copy_n(tip.begin(), length, icon.szTip);
}

}  // namespace

Win32Tray::~Win32Tray() {
  for (const auto& [owner, icon] : icons_) take_away(icon);
}

void Win32Tray::add(const void* owner, const std::string& tip,
                    std::function<void(int message)> mouse) {
  if (window_ == nullptr) make_window();
  Icon& icon = icons_[owner];
  if (icon.number == 0) icon.number = ++last_number_;
  icon.tip = widen(tip);
  icon.mouse = std::move(mouse);
  show(icon);
}

void Win32Tray::modify(const void* owner, const std::string& tip) {
  const auto found = icons_.find(owner);
  if (found == icons_.end()) return;
  found->second.tip = widen(tip);
  NOTIFYICONDATAW icon = icon_of(window_.get(), found->second.number);
  set_tip(icon, found->second.tip);
  Shell_NotifyIconW(NIM_MODIFY, &icon);
}

void Win32Tray::remove(const void* owner) {
  const auto found = icons_.find(owner);
  if (found == icons_.end()) return;
  take_away(found->second);
  icons_.erase(found);
}

void Win32Tray::take_away(const Icon& shown) {
  NOTIFYICONDATAW icon = icon_of(window_.get(), shown.number);
  Shell_NotifyIconW(NIM_DELETE, &icon);
}

void Win32Tray::show(const Icon& shown) {
  NOTIFYICONDATAW icon = icon_of(window_.get(), shown.number);
  icon.uFlags = NIF_MESSAGE | NIF_ICON;
  icon.uCallbackMessage = kTrayMessage;
  icon.hIcon = program_icon();
  set_tip(icon, shown.tip);
  Shell_NotifyIconW(NIM_ADD, &icon);
}

// An ordinary window without a title: those for messages alone do not hear the taskbar.
void Win32Tray::make_window() {
  const HINSTANCE module = GetModuleHandleW(nullptr);
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = &Win32Tray::window_procedure;
  window_class.hInstance = module;
  window_class.lpszClassName = kTrayWindowClass;
  RegisterClassW(&window_class);  // fails when an earlier tray did it already
  window_.reset(CreateWindowExW(WS_EX_TOOLWINDOW, kTrayWindowClass, L"", WS_POPUP, 0, 0, 0, 0,
                                nullptr, nullptr, module, nullptr));
  if (window_ == nullptr) return;
  SetWindowLongPtrW(window_.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  // The taskbar has fewer rights than a program run as administrator, which would not hear it.
  ChangeWindowMessageFilterEx(window_.get(), taskbar_created_message(), MSGFLT_ALLOW, nullptr);
}

LRESULT CALLBACK Win32Tray::window_procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* tray = reinterpret_cast<Win32Tray*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (tray != nullptr) tray->handle(message, w, l);
  return DefWindowProcW(window, message, w, l);
}

void Win32Tray::handle(UINT message, WPARAM w, LPARAM l) {
  if (message == taskbar_created_message()) {
    for (const auto& [owner, icon] : icons_) show(icon);
  }
  if (message != kTrayMessage) return;
  const auto found = std::find_if(icons_.begin(), icons_.end(),
                                  [w](const auto& icon) { return icon.second.number == w; });
  if (found == icons_.end()) return;
  // A copy, since the call may take the icon away.
  const auto mouse = found->second.mouse;
  if (mouse) mouse(static_cast<int>(l));
}

}  // namespace quillvane
