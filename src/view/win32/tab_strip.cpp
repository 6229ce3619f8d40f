#include "view/win32/tab_strip.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

constexpr int kTabEdge = 2;  // above the tabs, where the chosen one is higher

constexpr int kTabBeside = 8;  // beside and above a caption
constexpr int kTabAbove = 3;

}  // namespace

TabStrip::TabStrip(ViewHost& host) : host_(host) {
  window_ = CreateWindowExW(0, WC_TABCONTROLW, L"Results", WS_CHILD | WS_TABSTOP | WS_CLIPSIBLINGS,
                            0, 0, 0, 0, host.window(), nullptr, GetModuleHandleW(nullptr), nullptr);
  for (const ControlPlace& place : host.layout().controls) {
    if (place.tab.empty()) continue;
    std::wstring caption = widen(place.tab);
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    SendMessageW(window_, TCM_INSERTITEMW, captions_.size(), reinterpret_cast<LPARAM>(&item));
    captions_.push_back(place.tab);
  }
  restyle();
}

TabStrip::~TabStrip() { DestroyWindow(window_); }

std::string_view TabStrip::chosen() const {
  const LRESULT number = SendMessageW(window_, TCM_GETCURSEL, 0, 0);
  return number < 0 ? std::string_view() : captions_[static_cast<std::size_t>(number)];
}

// The controls stand below the strip and not in its pane, of which nothing shall show.
void TabStrip::move(const Box& box) {
  MoveWindow(window_, box.left, box.top, box.width, box.height, FALSE);
  const HRGN tabs = CreateRectRgn(0, 0, 0, 0);
  for (std::size_t i = 0; i < captions_.size(); ++i) {
    RECT tab{};
    SendMessageW(window_, TCM_GETITEMRECT, i, reinterpret_cast<LPARAM>(&tab));
    const HRGN one = CreateRectRgn(std::max<LONG>(tab.left - 2, 0), 0, tab.right + 2, box.height);
    CombineRgn(tabs, tabs, one, RGN_OR);
    DeleteObject(one);
  }
  SetWindowRgn(window_, tabs, TRUE);  // owns the region from here on
}

void TabStrip::restyle() {
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(host_.font()), TRUE);
  SendMessageW(window_, TCM_SETPADDING, 0,
               MAKELPARAM(scaled(kTabBeside, host_.dpi()), scaled(kTabAbove, host_.dpi())));
  const int height = scaled(host_.layout().tab_height, host_.dpi());
  SendMessageW(window_, TCM_SETITEMSIZE, 0, MAKELPARAM(0, height - kTabEdge));
}

}  // namespace quillvane
