#include "view/win32/edit_view.h"

#include <commctrl.h>

#include <algorithm>
#include <cstddef>

#include "platform/win32/wide_text.h"
#include "view/win32/look/arrange.h"
#include "view/win32/screen.h"

namespace quillvane {

namespace {

constexpr int kBeside = 4;  // between the frame and the text

std::string typed_in(HWND edit) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(edit)) + 1, L'\0');
  const int length = GetWindowTextW(edit, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return narrow(text);
}

}  // namespace

EditView::EditView(ViewHost& host, TextBox& box, const ControlPlace& place)
    : ControlView(host, box, place), box_(box) {
  create(WC_EDITW, WS_TABSTOP | ES_AUTOHSCROLL);
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

std::optional<LRESULT> EditView::filter(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_NCCALCSIZE: {
      // Both forms of the message begin with the window's place, which becomes that of the line.
      keep_room(*reinterpret_cast<RECT*>(l));
      return w != 0 ? std::optional<LRESULT>(0) : std::nullopt;
    }
    case WM_NCPAINT:
      paint_frame();
      return 0;
    case WM_NCHITTEST:
      return HTCLIENT;
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
      const LRESULT answer = DefSubclassProc(window(), message, w, l);
      paint_frame();
      return answer;
    }
    default:
      return std::nullopt;
  }
}

void EditView::keep_room(RECT& line) const {
  const int height = line.bottom - line.top;
  const int above = std::max((height - text_height(plain_font())) / 2, 1);
  const int beside = scaled(kBeside, host().dpi());
  InflateRect(&line, -beside, -above);
}

void EditView::paint_frame() const {
  const Theme& theme = host().theme();
  RECT area{};
  GetWindowRect(window(), &area);
  RECT line = area;
  keep_room(line);
  OffsetRect(&line, -area.left, -area.top);
  OffsetRect(&area, -area.left, -area.top);
  const HDC dc = GetWindowDC(window());
  ExcludeClipRect(dc, line.left, line.top, line.right, line.bottom);
  fill(dc, area, theme.list);
  frame(dc, area, GetFocus() == window() ? theme.focus : theme.box_edge);
  ReleaseDC(window(), dc);
}

HBRUSH EditView::prepare(HDC dc) {
  ground_.reset(CreateSolidBrush(host().theme().list));
  SetTextColor(dc, host().theme().list_text);
  SetBkColor(dc, host().theme().list);
  return ground_.get();
}

}  // namespace quillvane
