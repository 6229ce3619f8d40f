#include "view/win32/button_view.h"

#include <commctrl.h>

#include "platform/win32/wide_text.h"
#include "view/win32/gdi_objects.h"
#include "view/win32/look/arrange.h"
#include "view/win32/screen.h"

namespace quillvane {

namespace {

constexpr int kPictureSize = 16;
constexpr int kPadding = 14;  // on both sides of a caption
constexpr int kLinkPadding = 4;
constexpr int kFocusInside = 3;
constexpr int kHoverShare = 40;
constexpr int kPressShare = 80;

}  // namespace

ButtonView::ButtonView(ViewHost& host, Clickable& button, const ControlPlace& place)
    : ControlView(host, button, place), button_(button) {
  create(WC_BUTTONW, WS_TABSTOP | BS_OWNERDRAW);
  restyle();
}

HFONT ButtonView::font() const {
  if (is(ControlKind::kLink)) return link_font_.get();
  return is(ControlKind::kMainButton) ? bold_font() : plain_font();
}

void ButtonView::restyle() {
  ControlView::restyle();
  if (is(ControlKind::kLink)) {
    LOGFONTW underlined{};
    GetObjectW(plain_font(), sizeof(underlined), &underlined);
    underlined.lfUnderline = TRUE;
    link_font_.reset(CreateFontIndirectW(&underlined));
  }
  send(WM_SETFONT, reinterpret_cast<WPARAM>(font()), TRUE);
}

std::string ButtonView::caption() const {
  const bool has_none = button_.caption().empty() && says_what_it_shows();
  return has_none ? std::string(place().accessible_name) : button_.caption();
}

int ButtonView::wanted_width() const {
  if (is(ControlKind::kTitleButton)) return 0;
  const int padding = is(ControlKind::kLink) ? kLinkPadding : kPadding;
  return text_width(font(), widen(caption()).c_str()) + 2 * scaled(padding, host().dpi());
}

int ButtonView::overhang() const {
  return is(ControlKind::kLink) ? scaled(kLinkPadding, host().dpi()) : 0;
}

bool ButtonView::press() {
  commanded(BN_CLICKED);
  return true;
}

void ButtonView::commanded(int code) {
  // A double click is a second press.
  if (code != BN_CLICKED && code != BN_DOUBLECLICKED) return;
  // A button that is off by now does nothing when its turn comes.
  const auto meanwhile =
      button_.enabled() ? host().layout().while_reading(place().name) : WhileReading::kWaits;
  host().act(
      [this] {
        if (button_.enabled() && host().confirms(place().name)) button_.click();
      },
      meanwhile);
}

void ButtonView::show_changes(const Changes& changes) {
  const bool says_its_caption = place().accessible_name.empty() || says_what_it_shows();
  if (changes.has(Change::kCaption) && says_its_caption) show_text(caption());
  InvalidateRect(window(), nullptr, FALSE);
}

ButtonView::Look ButtonView::command_look(bool enabled, bool pressed) const {
  const Theme& theme = host().theme();
  if (!enabled) return {theme.page, theme.border, theme.disabled_text};
  if (place().kind == ControlKind::kMainButton) {
    const COLORREF back = theme.main_button;
    const int share = pressed ? kPressShare : over_ ? kHoverShare : 0;
    const COLORREF lit = theme.high_contrast ? back : mixed(back, theme.main_button_text, share);
    return {lit, theme.high_contrast ? theme.border : lit, theme.main_button_text};
  }
  return {pressed ? theme.button_pressed
          : over_ ? theme.button_over
                  : theme.button,
          theme.border, theme.text};
}

ButtonView::Look ButtonView::title_look(bool pressed) const {
  const Theme& theme = host().theme();
  const int share = pressed ? kPressShare : over_ ? kHoverShare : 0;
  const COLORREF back = mixed(theme.title, theme.title_text, share);
  return {back, back, theme.title_text};
}

ButtonView::Look ButtonView::link_look() const {
  const Theme& theme = host().theme();
  return {theme.page, theme.page, over_ ? theme.text : theme.link};
}

ButtonView::Look ButtonView::look(bool enabled, bool pressed) const {
  if (is(ControlKind::kTitleButton)) return title_look(pressed);
  return is(ControlKind::kLink) ? link_look() : command_look(enabled, pressed);
}

void ButtonView::draw_caption(HDC dc, RECT area, const Look& look) const {
  const Selected selected(dc, font());
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, look.text);
  const std::wstring text = widen(caption());
  if (is(ControlKind::kLink)) InflateRect(&area, -scaled(kLinkPadding, host().dpi()), 0);
  const UINT place = is(ControlKind::kLink) ? DT_LEFT : DT_CENTER;
  DrawTextW(dc, text.c_str(), -1, &area,
            place | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void ButtonView::draw(const DRAWITEMSTRUCT& item) {
  const Look shown =
      look((item.itemState & ODS_DISABLED) == 0, (item.itemState & ODS_SELECTED) != 0);
  RECT area = item.rcItem;
  fill(item.hDC, area, shown.back);
  frame(item.hDC, area, shown.edge);
  if (is(ControlKind::kTitleButton)) {
    const int size = scaled(kPictureSize, host().dpi());
    host().pictures().draw(item.hDC, (area.left + area.right - size) / 2,
                           (area.top + area.bottom - size) / 2, size, place().picture, shown.text);
  } else {
    draw_caption(item.hDC, area, shown);
  }
  // Only whom the keyboard leads here is shown where it stands.
  const bool shows_focus =
      (item.itemState & ODS_FOCUS) != 0 && (item.itemState & ODS_NOFOCUSRECT) == 0;
  if (!shows_focus) return;
  const int inside = is(ControlKind::kLink) ? 0 : scaled(kFocusInside, host().dpi());
  InflateRect(&area, -inside, -inside);
  const bool on_color = is(ControlKind::kTitleButton) || is(ControlKind::kMainButton);
  frame(item.hDC, area, on_color ? shown.text : host().theme().focus);
}

void ButtonView::mouse_is_over(bool over) {
  if (over_ == over) return;
  over_ = over;
  InvalidateRect(window(), nullptr, FALSE);
  if (!over) return;
  TRACKMOUSEEVENT track{};
  track.cbSize = sizeof(track);
  track.dwFlags = TME_LEAVE;
  track.hwndTrack = window();
  TrackMouseEvent(&track);
}

std::optional<LRESULT> ButtonView::filter(UINT message, WPARAM /*w*/, LPARAM /*l*/) {
  if (message == WM_SETCURSOR && is(ControlKind::kLink)) {
    SetCursor(LoadCursorW(nullptr, IDC_HAND));
    return TRUE;
  }
  if (message == WM_MOUSEMOVE) mouse_is_over(true);
  if (message == WM_MOUSELEAVE) mouse_is_over(false);
  if (message == WM_ERASEBKGND) return 1;  // all of it is drawn
  return std::nullopt;
}

}  // namespace quillvane
