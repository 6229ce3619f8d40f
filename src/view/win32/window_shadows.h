// The shadows of windows without a border, on the screen.
#pragma once

#include <windows.h>

#include "controls/mod_shadow.h"

namespace quillvane {

// The window that is a shadow, and the property by which a window knows its own.
inline constexpr wchar_t kShadowName[] = L"TrickShadow";

class WindowShadows final : private ShadowScreen {
 public:
  WindowShadows() = default;
  WindowShadows(const WindowShadows&) = delete;
  WindowShadows& operator=(const WindowShadows&) = delete;

  // The shadow follows its window and goes with it. This object outlives both.
  void create(HWND host) { shadows_.create(id(host)); }
  void remove(HWND host) { shadows_.remove(id(host)); }
  void set_size(HWND host, int size) { shadows_.set_size(id(host), size); }
  void set_color(HWND host, Color color) { shadows_.set_color(id(host), color); }

 private:
  static WindowId id(HWND window) { return reinterpret_cast<WindowId>(window); }
  static HWND window(WindowId id) { return reinterpret_cast<HWND>(id); }
  static LRESULT CALLBACK watch_procedure(HWND host, UINT message, WPARAM w, LPARAM l, UINT_PTR id,
                                          DWORD_PTR self);

  WindowId make_shadow(WindowId host) override;
  void watch(WindowId host) override;
  void unwatch(WindowId host) override;
  void destroy(WindowId shadow) override;
  WindowId shadow_of(WindowId host) override;
  void set_shadow_of(WindowId host, WindowId shadow) override;
  void remove_shadow_of(WindowId host) override;
  std::int32_t extra(WindowId shadow, int place) override;
  void set_extra(WindowId shadow, int place, std::int32_t value) override;
  Rect bounds(WindowId of) override;
  bool is_shown(WindowId of) override;
  bool is_minimised(WindowId of) override;
  void set_picture(WindowId shadow, const Image& picture) override;
  void place(WindowId shadow, WindowId host, Point at) override;
  void hide(WindowId shadow) override;

  modShadow shadows_{*this};
};

}  // namespace quillvane
