#include "view/win32/note_view.h"

#include <commctrl.h>

#include "platform/win32/wide_text.h"
#include "view/win32/gdi_objects.h"
#include "view/win32/screen.h"

namespace quillvane {

namespace {

constexpr UINT kLine = DT_LEFT | DT_NOPREFIX | DT_END_ELLIPSIS;

}  // namespace

NoteView::NoteView(ViewHost& host, Control& model, const ControlPlace& place)
    : ControlView(host, model, place) {
  create(WC_STATICW, SS_LEFT | SS_NOPREFIX);
}

int NoteView::wanted_width() const {
  if (place().kind != ControlKind::kCaption) return 0;
  return text_width(host().font(), widen(place().accessible_name).c_str());
}

std::optional<LRESULT> NoteView::filter(UINT message, WPARAM /*w*/, LPARAM /*l*/) {
  if (message == WM_ERASEBKGND) return 1;
  if (message != WM_PAINT) return std::nullopt;
  paint();
  return 0;
}

void NoteView::paint() {
  const PaintScope paint(window());
  RECT area = client_area();
  fill(paint.dc(), area, host().theme().page);
  SetBkMode(paint.dc(), TRANSPARENT);
  SetTextColor(paint.dc(), host().theme().text);
  const std::wstring text = widen(place().accessible_name);
  if (place().kind == ControlKind::kCaption) {
    const Selected font(paint.dc(), host().font());
    DrawTextW(paint.dc(), text.c_str(), -1, &area, kLine | DT_VCENTER | DT_SINGLELINE);
    return;
  }
  const std::size_t end = text.find(L'\n');
  {
    const Selected font(paint.dc(), host().bold_font());
    DrawTextW(paint.dc(), text.c_str(), static_cast<int>(end == text.npos ? text.size() : end),
              &area, kLine | DT_SINGLELINE);
    area.top += text_height(host().bold_font());
  }
  if (end == text.npos) return;
  const Selected font(paint.dc(), host().font());
  DrawTextW(paint.dc(), text.c_str() + end + 1, -1, &area, kLine | DT_WORDBREAK);
}

}  // namespace quillvane
