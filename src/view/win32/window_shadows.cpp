#include "view/win32/window_shadows.h"

#include <commctrl.h>

#include "view/win32/picture_bitmap.h"

namespace quillvane {

namespace {

constexpr UINT_PTR kWatch = 1;
constexpr int kExtraBytes = 16;

// True when the class is there, whoever made it.
bool register_class() {
  WNDCLASSEXW type{};
  type.cbSize = sizeof(type);
  type.lpfnWndProc = DefWindowProcW;
  type.cbWndExtra = kExtraBytes;
  type.hInstance = GetModuleHandleW(nullptr);
  type.lpszClassName = kShadowName;
  return RegisterClassExW(&type) != 0 || GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

}  // namespace

WindowId WindowShadows::make_shadow(WindowId host) {
  if (!register_class()) return 0;
  // Owned by nobody: an owned window would stand before its owner.
  static_cast<void>(host);
  return id(CreateWindowExW(WS_EX_LAYERED | WS_EX_TRANSPARENT | WS_EX_TOOLWINDOW, kShadowName,
                            nullptr, WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                            GetModuleHandleW(nullptr), nullptr));
}

void WindowShadows::watch(WindowId host) {
  SetWindowSubclass(window(host), &WindowShadows::watch_procedure, kWatch,
                    reinterpret_cast<DWORD_PTR>(this));
}

void WindowShadows::unwatch(WindowId host) {
  RemoveWindowSubclass(window(host), &WindowShadows::watch_procedure, kWatch);
}

LRESULT CALLBACK WindowShadows::watch_procedure(HWND host, UINT message, WPARAM w, LPARAM l,
                                                UINT_PTR /*id*/, DWORD_PTR self) {
  auto* shadows = reinterpret_cast<WindowShadows*>(self);
  if (message != WM_SYSCOMMAND) shadows->shadows_.message(id(host), message, w);
  const LRESULT result = DefSubclassProc(host, message, w, l);
  // What a command does has been done then; the window may be gone.
  if (message == WM_SYSCOMMAND && IsWindow(host) != FALSE) {
    shadows->shadows_.message(id(host), message, w);
  }
  return result;
}

void WindowShadows::destroy(WindowId shadow) { DestroyWindow(window(shadow)); }

WindowId WindowShadows::shadow_of(WindowId host) {
  return reinterpret_cast<WindowId>(GetPropW(window(host), kShadowName));
}

void WindowShadows::set_shadow_of(WindowId host, WindowId shadow) {
  SetPropW(window(host), kShadowName, window(shadow));
}

void WindowShadows::remove_shadow_of(WindowId host) { RemovePropW(window(host), kShadowName); }

std::int32_t WindowShadows::extra(WindowId shadow, int place) {
  return GetWindowLongW(window(shadow), place);
}

void WindowShadows::set_extra(WindowId shadow, int place, std::int32_t value) {
  SetWindowLongW(window(shadow), place, value);
}

Rect WindowShadows::bounds(WindowId of) {
  RECT rect{};
  GetWindowRect(window(of), &rect);
  return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

bool WindowShadows::is_shown(WindowId of) { return IsWindowVisible(window(of)) != FALSE; }

bool WindowShadows::is_minimised(WindowId of) { return IsIconic(window(of)) != FALSE; }

void WindowShadows::set_picture(WindowId shadow, const Image& picture) {
  const PictureBitmap bitmap(picture, PictureBitmap::Alpha::kMultiplied);
  SIZE size{picture.width, picture.height};
  POINT from{0, 0};
  BLENDFUNCTION by_its_alpha{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  UpdateLayeredWindow(window(shadow), nullptr, nullptr, &size, bitmap.dc(), &from, 0, &by_its_alpha,
                      ULW_ALPHA);
}

void WindowShadows::place(WindowId shadow, WindowId host, Point at) {
  SetWindowPos(window(shadow), window(host), at.x, at.y, 0, 0,
               SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

void WindowShadows::hide(WindowId shadow) { ShowWindow(window(shadow), SW_HIDE); }

}  // namespace quillvane
