#include "view/win32/tab_strip.h"

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <utility>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

constexpr int kTabEdge = 2;  // above the tabs, where the chosen one is higher

constexpr int kTabBeside = 8;  // beside and above a caption
constexpr int kTabAbove = 3;

}  // namespace

void add_tab(HWND strip, std::size_t number, std::string_view caption) {
  std::wstring text = widen(caption);
  TCITEMW item{};
  item.mask = TCIF_TEXT;
  item.pszText = text.data();
  SendMessageW(strip, TCM_INSERTITEMW, number, reinterpret_cast<LPARAM>(&item));
}

void style_tabs(HWND strip, const ViewHost& host, int height) {
  SendMessageW(strip, WM_SETFONT, reinterpret_cast<WPARAM>(host.font()), TRUE);
  SendMessageW(strip, TCM_SETPADDING, 0,
               MAKELPARAM(scaled(kTabBeside, host.dpi()), scaled(kTabAbove, host.dpi())));
  SendMessageW(strip, TCM_SETITEMSIZE, 0, MAKELPARAM(0, scaled(height, host.dpi()) - kTabEdge));
}

void cut_to_tabs(HWND strip, int height) {
  const HRGN tabs = CreateRectRgn(0, 0, 0, 0);
  const auto count = static_cast<WPARAM>(SendMessageW(strip, TCM_GETITEMCOUNT, 0, 0));
  for (WPARAM i = 0; i < count; ++i) {
    RECT tab{};
    SendMessageW(strip, TCM_GETITEMRECT, i, reinterpret_cast<LPARAM>(&tab));
    const HRGN one = CreateRectRgn(std::max<LONG>(tab.left - 2, 0), 0, tab.right + 2, height);
    CombineRgn(tabs, tabs, one, RGN_OR);
    DeleteObject(one);
  }
  SetWindowRgn(strip, tabs, TRUE);  // owns the region from here on
}

TabStrip::TabStrip(ViewHost& host, const wchar_t* says, std::vector<std::string_view> captions,
                   int height)
    : host_(host), captions_(std::move(captions)), height_(height) {
  window_ = CreateWindowExW(0, WC_TABCONTROLW, says, WS_CHILD | WS_TABSTOP | WS_CLIPSIBLINGS, 0, 0,
                            0, 0, host.window(), nullptr, GetModuleHandleW(nullptr), nullptr);
  for (std::size_t i = 0; i < captions_.size(); ++i) add_tab(window_, i, captions_[i]);
  restyle();
}

TabStrip::~TabStrip() { DestroyWindow(window_); }

int TabStrip::chosen_number() const {
  return static_cast<int>(SendMessageW(window_, TCM_GETCURSEL, 0, 0));
}

std::string_view TabStrip::chosen() const {
  const int number = chosen_number();
  return number < 0 ? std::string_view() : captions_[static_cast<std::size_t>(number)];
}

void TabStrip::choose(int number) {
  if (number == chosen_number()) return;
  SendMessageW(window_, TCM_SETCURSEL, static_cast<WPARAM>(number), 0);
}

void TabStrip::move(const Box& box) {
  MoveWindow(window_, box.left, box.top, box.width, box.height, FALSE);
  cut_to_tabs(window_, box.height);
}

void TabStrip::restyle() { style_tabs(window_, host_, height_); }

std::vector<std::string_view> tabs_of(const WindowLayout& layout) {
  std::vector<std::string_view> captions;
  for (const ControlPlace& place : layout.controls) {
    if (!place.tab.empty()) captions.push_back(place.tab);
  }
  return captions;
}

}  // namespace quillvane
