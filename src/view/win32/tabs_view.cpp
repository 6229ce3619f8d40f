#include "view/win32/tabs_view.h"

#include <commctrl.h>

#include <cstddef>

#include "platform/win32/wide_text.h"
#include "view/win32/tab_strip.h"

namespace quillvane {

TabsView::TabsView(ViewHost& host, Tabs& tabs, const ControlPlace& place)
    : ControlView(host, tabs, place), tabs_(tabs) {
  create(WC_TABCONTROLW, WS_TABSTOP | WS_CLIPSIBLINGS);
  for (int tab = 1; tab <= tabs_.count(); ++tab) {
    add_tab(window(), static_cast<std::size_t>(tab) - 1, tabs_.caption(tab));
  }
  restyle();
}

void TabsView::restyle() {
  ControlView::restyle();
  style_tabs(window(), host(), place().width);
  cut_to_tabs(window(), client_area().bottom);
}

std::optional<LRESULT> TabsView::notified(NMHDR& header) {
  if (header.code != static_cast<UINT>(TCN_SELCHANGE)) return std::nullopt;
  const auto tab = static_cast<int>(send(TCM_GETCURSEL)) + 1;
  host().act([this, tab] {
    tabs_.click_tab(tab);
    changed(tabs_, Change::kValue);  // the model may have stayed with the tab before
  });
  return 0;
}

void TabsView::show_changes(const Changes& changes) {
  if (changes.has(Change::kCaption)) {
    for (int tab = 1; tab <= tabs_.count(); ++tab) {
      std::wstring text = widen(tabs_.caption(tab));
      TCITEMW item{};
      item.mask = TCIF_TEXT;
      item.pszText = text.data();
      send(TCM_SETITEMW, static_cast<WPARAM>(tab) - 1, reinterpret_cast<LPARAM>(&item));
    }
    cut_to_tabs(window(), client_area().bottom);
  }
  send(TCM_SETCURSEL, static_cast<WPARAM>(tabs_.chosen()) - 1);
}

std::optional<LRESULT> TabsView::filter(UINT message, WPARAM w, LPARAM l) {
  if (message != WM_SIZE) return std::nullopt;
  const LRESULT answer = DefSubclassProc(window(), message, w, l);
  cut_to_tabs(window(), client_area().bottom);
  return answer;
}

}  // namespace quillvane
