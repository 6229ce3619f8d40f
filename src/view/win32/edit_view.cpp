#include "view/win32/edit_view.h"

#include <commctrl.h>

#include <cstddef>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

std::string typed_in(HWND edit) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(edit)) + 1, L'\0');
  const int length = GetWindowTextW(edit, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return narrow(text);
}

}  // namespace

EditView::EditView(ViewHost& host, TextBox& box, const ControlPlace& place)
    : ControlView(host, box, place), box_(box) {
  create(WC_EDITW, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL);
}

void EditView::commanded(int code) {
  if (code != EN_CHANGE) return;
  const std::string typed = typed_in(window());
  host().act([this, typed] {
    agreed_ = typed;
    box_.set_text(typed);
  });
}

void EditView::show_changes(const Changes& changes) {
  if (!changes.has(Change::kText) || box_.text() == agreed_) return;
  agreed_ = box_.text();
  if (typed_in(window()) != agreed_) SetWindowTextW(window(), widen(agreed_).c_str());
}

HBRUSH EditView::prepare(HDC dc) {
  ground_.reset(CreateSolidBrush(host().theme().list));
  SetTextColor(dc, host().theme().list_text);
  SetBkColor(dc, host().theme().list);
  return ground_.get();
}

}  // namespace quillvane
