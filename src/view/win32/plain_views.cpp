#include "view/win32/plain_views.h"

#include <commctrl.h>

#include "platform/win32/wide_text.h"
#include "view/win32/look/arrange.h"
#include "view/win32/screen.h"

namespace quillvane {

namespace {

constexpr int kLinePadding = 8;
constexpr int kMarkSize = 12;
constexpr int kPictureSize = 16;

constexpr DWORD kLabelStyle = SS_LEFT | SS_CENTERIMAGE | SS_NOPREFIX;

}  // namespace

LabelView::LabelView(ViewHost& host, Label& label, const ControlPlace& place)
    : ControlView(host, label, place), label_(label) {
  create(WC_STATICW, kLabelStyle | (names_a_folder() ? SS_PATHELLIPSIS : SS_ENDELLIPSIS));
  send(WM_SETFONT, reinterpret_cast<WPARAM>(font()), FALSE);
}

HFONT LabelView::font() const {
  return place().kind == ControlKind::kHeading ? bold_font() : plain_font();
}

int LabelView::wanted_width() const { return text_width(font(), widen(label_.caption()).c_str()); }

void LabelView::show_reading(const std::wstring& folder) {
  if (names_a_folder()) SetWindowTextW(window(), folder.c_str());
}

void LabelView::restyle() {
  ControlView::restyle();
  send(WM_SETFONT, reinterpret_cast<WPARAM>(font()), TRUE);
}

HBRUSH LabelView::prepare(HDC dc) {
  page_.reset(CreateSolidBrush(host().theme().page));
  SetTextColor(dc, host().theme().text);
  SetBkColor(dc, host().theme().page);
  return page_.get();
}

void LabelView::show_changes(const Changes& changes) {
  if (changes.has(Change::kCaption)) show_text(label_.caption());
}

PathLineView::PathLineView(ViewHost& host, TextBox& box, const ControlPlace& place)
    : ControlView(host, box, place), box_(box) {
  create(WC_STATICW, SS_LEFT | SS_NOPREFIX);
}

void PathLineView::show_changes(const Changes& changes) {
  if (changes.has(Change::kText)) {
    folder_.clear();
    show_text(box_.text());
  }
  InvalidateRect(window(), nullptr, FALSE);
}

void PathLineView::show_reading(const std::wstring& folder) {
  if (folder == folder_) return;
  folder_ = folder;
  SetWindowTextW(window(), folder_.c_str());
  InvalidateRect(window(), nullptr, FALSE);
}

std::optional<LRESULT> PathLineView::filter(UINT message, WPARAM /*w*/, LPARAM /*l*/) {
  if (message == WM_ERASEBKGND) return 1;
  if (message != WM_PAINT) return std::nullopt;
  paint();
  return 0;
}

void PathLineView::paint() {
  const PaintScope paint(window());
  const Theme& theme = host().theme();
  const COLORREF back = theme.high_contrast ? theme.page : shown_color(box_.back_color());
  RECT area = client_area();
  fill(paint.dc(), area, back);
  InflateRect(&area, -scaled(kLinePadding, host().dpi()), 0);
  const Selected font(paint.dc(), plain_font());
  SetBkMode(paint.dc(), TRANSPARENT);
  SetTextColor(paint.dc(), theme.high_contrast ? theme.text : readable_on(back));
  const std::wstring text = folder_.empty() ? widen(box_.text()) : folder_;
  DrawTextW(paint.dc(), text.c_str(), -1, &area,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_PATH_ELLIPSIS);
}

MarkView::MarkView(ViewHost& host, Control& mark, const ControlPlace& place)
    : ControlView(host, mark, place) {
  create(WC_STATICW, SS_LEFT);
}

void MarkView::show_changes(const Changes& /*changes*/) {
  InvalidateRect(window(), nullptr, FALSE);
}

std::optional<LRESULT> MarkView::filter(UINT message, WPARAM /*w*/, LPARAM /*l*/) {
  if (message == WM_ERASEBKGND) return 1;
  if (message != WM_PAINT) return std::nullopt;
  paint();
  return 0;
}

void MarkView::paint() {
  const PaintScope paint(window());
  const Theme& theme = host().theme();
  RECT area = client_area();
  fill(paint.dc(), area, theme.page);
  const bool is_mark = place().kind == ControlKind::kMark;
  const int size = scaled(is_mark ? kMarkSize : kPictureSize, host().dpi());
  const int left = (area.right - size) / 2;
  const int top = (area.bottom - size) / 2;
  if (is_mark) {
    const RECT square{left, top, left + size, top + size};
    fill(paint.dc(), square, theme.high_contrast ? theme.text : shown_color(model().back_color()));
    return;
  }
  host().pictures().draw(paint.dc(), left, top, size, place().picture, CLR_NONE);
}

ProgressView::ProgressView(ViewHost& host, ProgressBar& bar, const ControlPlace& place)
    : ControlView(host, bar, place), bar_(bar) {
  create(PROGRESS_CLASSW, PBS_SMOOTH);
}

void ProgressView::show_changes(const Changes& /*changes*/) {
  send(PBM_SETRANGE32, static_cast<WPARAM>(bar_.minimum()), bar_.maximum());
  send(PBM_SETPOS, static_cast<WPARAM>(bar_.value()));
}

}  // namespace quillvane
