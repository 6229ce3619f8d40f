#include "view/win32/check_box_view.h"

#include <commctrl.h>

#include "platform/win32/wide_text.h"
#include "view/win32/look/arrange.h"
#include "view/win32/screen.h"

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

OptionView::OptionView(ViewHost& host, OptionButton& option, const ControlPlace& place)
    : ControlView(host, option, place), option_(option) {
  create(WC_BUTTONW, WS_TABSTOP | BS_RADIOBUTTON);
}

int OptionView::wanted_width() const {
  constexpr int kRing = 28;
  return text_width(host().font(), widen(option_.caption()).c_str()) + scaled(kRing, host().dpi());
}

// The ring is clicked by the focus too, as Windows has it; only what the user presses counts.
void OptionView::commanded(int code) {
  if (code != BN_CLICKED && code != BN_DOUBLECLICKED) return;
  host().act([this] { option_.click(); });
}

void OptionView::show_changes(const Changes& changes) {
  if (changes.has(Change::kCaption)) show_text(option_.caption());
  send(BM_SETCHECK, option_.chosen() ? BST_CHECKED : BST_UNCHECKED);
}

HBRUSH OptionView::prepare(HDC dc) {
  page_.reset(CreateSolidBrush(host().theme().page));
  SetTextColor(dc, host().theme().text);
  SetBkColor(dc, host().theme().page);
  return page_.get();
}

}  // namespace quillvane
