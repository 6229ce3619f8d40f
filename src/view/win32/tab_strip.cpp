#include "view/win32/tab_strip.h"

#include <commctrl.h>

#include <string>

#include "platform/win32/wide_text.h"

namespace quillvane {

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

void TabStrip::restyle() {
  SendMessageW(window_, WM_SETFONT, reinterpret_cast<WPARAM>(host_.font()), TRUE);
}

}  // namespace quillvane
