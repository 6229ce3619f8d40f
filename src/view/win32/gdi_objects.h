// Owners of what drawing takes from Windows.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <type_traits>

#include "forms/control.h"

namespace quillvane {

struct DeleteGdiObject {
  void operator()(void* object) const { DeleteObject(object); }
};
using FontOwner = std::unique_ptr<std::remove_pointer_t<HFONT>, DeleteGdiObject>;
using BrushOwner = std::unique_ptr<std::remove_pointer_t<HBRUSH>, DeleteGdiObject>;
using PenOwner = std::unique_ptr<std::remove_pointer_t<HPEN>, DeleteGdiObject>;
using BitmapOwner = std::unique_ptr<std::remove_pointer_t<HBITMAP>, DeleteGdiObject>;

struct DeleteIcon {
  void operator()(HICON icon) const { DestroyIcon(icon); }
};
using IconOwner = std::unique_ptr<std::remove_pointer_t<HICON>, DeleteIcon>;

struct DeleteImageList {
  void operator()(HIMAGELIST list) const { ImageList_Destroy(list); }
};
using ImageListOwner = std::unique_ptr<std::remove_pointer_t<HIMAGELIST>, DeleteImageList>;

// Selects an object into a device context for the length of a block.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
  ~Selected() { SelectObject(dc_, before_); }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ before_;
};

// The device context of a window's WM_PAINT.
class PaintScope {
 public:
  explicit PaintScope(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {}
  ~PaintScope() { EndPaint(window_, &paint_); }
  PaintScope(const PaintScope&) = delete;
  PaintScope& operator=(const PaintScope&) = delete;

  [[nodiscard]] HDC dc() const { return dc_; }

 private:
  HWND window_;
  PAINTSTRUCT paint_{};
  HDC dc_;
};

inline void fill(HDC dc, const RECT& area, COLORREF color) {
  const BrushOwner brush(CreateSolidBrush(color));
  FillRect(dc, &area, brush.get());
}

inline void frame(HDC dc, const RECT& area, COLORREF color) {
  const BrushOwner brush(CreateSolidBrush(color));
  FrameRect(dc, &area, brush.get());
}

// A colour of the models as drawing takes it. One with the highest bit set is a number of the
// system's colours.
inline COLORREF shown_color(Color color) {
  constexpr Color kOfSystem = 0x80000000U;
  return (color & kOfSystem) != 0 ? GetSysColor(static_cast<int>(color & 0xFFU)) : color;
}

}  // namespace quillvane
