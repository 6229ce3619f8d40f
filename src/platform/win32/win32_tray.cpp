#include "platform/win32/win32_tray.h"

#include <shellapi.h>

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

constexpr UINT kIconId = 1;
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

NOTIFYICONDATAW icon_of(HWND window) {
  NOTIFYICONDATAW icon{};
  icon.cbSize = sizeof(icon);
  icon.hWnd = window;
  icon.uID = kIconId;
  return icon;
}

void set_tip(NOTIFYICONDATAW& icon, const std::wstring& tip) {
  icon.uFlags |= NIF_TIP;
  const std::size_t length = std::min(tip.size(), std::size(icon.szTip) - 1);
  std::copy_n(tip.begin(), length, icon.szTip);
}

}  // namespace

Win32Tray::~Win32Tray() { remove(); }

void Win32Tray::add(const std::string& tip, std::function<void()> double_click) {
  if (window_ == nullptr) make_window();
  tip_ = widen(tip);
  double_click_ = std::move(double_click);
  is_shown_ = true;
  show();
}

void Win32Tray::modify(const std::string& tip) {
  if (!is_shown_) return;
  tip_ = widen(tip);
  NOTIFYICONDATAW icon = icon_of(window_.get());
  set_tip(icon, tip_);
  Shell_NotifyIconW(NIM_MODIFY, &icon);
}

void Win32Tray::remove() {
  if (!is_shown_) return;
  is_shown_ = false;
  double_click_ = nullptr;
  NOTIFYICONDATAW icon = icon_of(window_.get());
  Shell_NotifyIconW(NIM_DELETE, &icon);
}

void Win32Tray::show() {
  NOTIFYICONDATAW icon = icon_of(window_.get());
  icon.uFlags = NIF_MESSAGE | NIF_ICON;
  icon.uCallbackMessage = kTrayMessage;
  icon.hIcon = program_icon();
  set_tip(icon, tip_);
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
  if (tray != nullptr) tray->handle(message, l);
  return DefWindowProcW(window, message, w, l);
}

void Win32Tray::handle(UINT message, LPARAM l) {
  if (message == taskbar_created_message() && is_shown_) show();
  if (message != kTrayMessage || (l != WM_LBUTTONDBLCLK && l != WM_RBUTTONDBLCLK)) return;
  // A copy, since the call may take the icon away.
  const auto double_click = double_click_;
  if (double_click) double_click();
}

}  // namespace quillvane
