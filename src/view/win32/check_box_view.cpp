#include "view/win32/check_box_view.h"

#include <commctrl.h>

namespace quillvane {

CheckBoxView::CheckBoxView(ViewHost& host, CheckBox& box, const ControlPlace& place)
    : ControlView(host, box, place), box_(box) {
  create(WC_BUTTONW, WS_TABSTOP | BS_CHECKBOX);
}

void CheckBoxView::commanded(int code) {
  if (code != BN_CLICKED && code != BN_DOUBLECLICKED) return;
  host().act([this] { box_.click(); });
}

void CheckBoxView::show_changes(const Changes& changes) {
  if (changes.has(Change::kCaption)) show_text(box_.caption());
  send(BM_SETCHECK, box_.checked() ? BST_CHECKED : BST_UNCHECKED);
}

HBRUSH CheckBoxView::prepare(HDC dc) {
  page_.reset(CreateSolidBrush(host().theme().page));
  SetTextColor(dc, host().theme().text);
  SetBkColor(dc, host().theme().page);
  return page_.get();
}

}  // namespace quillvane
