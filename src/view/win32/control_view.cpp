#include "view/win32/control_view.h"

#include <commctrl.h>

#include <iterator>
#include <string>
#include <string_view>
#include <utility>

#include "platform/win32/wide_text.h"
#include "view/win32/accessible_name.h"
#include "view/win32/screen.h"

namespace quillvane {

ControlView::ControlView(ViewHost& host, Control& model, const ControlPlace& place)
    : host_(host), model_(model), place_(place) {
  model_.observe(*this);
}

ControlView::~ControlView() {
  model_.unobserve(*this);
  if (window_ == nullptr) return;
  RemoveWindowSubclass(window_, procedure, 0);
  DestroyWindow(window_);
}

void ControlView::create(const wchar_t* window_class, DWORD style, DWORD extended_style) {
  window_ =
      CreateWindowExW(extended_style, window_class, L"", WS_CHILD | WS_CLIPSIBLINGS | style, 0, 0,
                      0, 0, host_.window(), nullptr, GetModuleHandleW(nullptr), nullptr);
  if (window_ == nullptr) return;
  SetWindowSubclass(window_, procedure, 0, reinterpret_cast<DWORD_PTR>(this));
  take_fonts();
  send(WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), FALSE);
  if (!place_.accessible_name.empty() && !says_what_it_shows()) {
    name_for_readers(window_, widen(place_.accessible_name));
  }
}

bool ControlView::says_what_it_shows() const {
  return place_.kind == ControlKind::kButton || place_.kind == ControlKind::kMainButton;
}

void ControlView::show_text(const std::string& text) {
  const std::wstring wide = widen(text);
  wchar_t shown[256];
  const int length = GetWindowTextW(window_, shown, static_cast<int>(std::size(shown)));
  if (wide == std::wstring_view(shown, static_cast<std::size_t>(length))) return;
  SetWindowTextW(window_, wide.c_str());
}

void ControlView::changed(Control& /*control*/, Change what) {
  if (noted_.has(what)) return;
  noted_.add(what);
  host_.needs_refresh();
}

void ControlView::refresh() {
  if (noted_.none()) return;
  if (model_.font() != shown_font_) restyle();
  const Changes changes = std::exchange(noted_, Changes());
  if (changes.has(Change::kEnabled)) EnableWindow(window_, model_.enabled() ? TRUE : FALSE);
  show_changes(changes);
  if (changes.has(Change::kFocus) && IsWindowVisible(window_) != 0) SetFocus(window_);
}

HFONT ControlView::plain_font() const {
  return plain_font_ != nullptr ? plain_font_.get() : host_.font();
}

HFONT ControlView::bold_font() const {
  return bold_font_ != nullptr ? bold_font_.get() : host_.bold_font();
}

void ControlView::take_fonts() {
  shown_font_ = model_.font();
  plain_font_ = shown_font_ ? make_font(*shown_font_, FW_NORMAL, host_.dpi()) : nullptr;
  bold_font_ = shown_font_ ? make_font(*shown_font_, FW_SEMIBOLD, host_.dpi()) : nullptr;
}

void ControlView::restyle() {
  const FontOwner before = std::move(plain_font_);  // stays until the control has its new one
  const FontOwner bold_before = std::move(bold_font_);
  take_fonts();
  send(WM_SETFONT, reinterpret_cast<WPARAM>(plain_font()), TRUE);
  noted_ = Changes::all();
}

RECT ControlView::client_area() const {
  RECT area{};
  GetClientRect(window_, &area);
  return area;
}

LRESULT CALLBACK ControlView::procedure(HWND window, UINT message, WPARAM w, LPARAM l,
                                        UINT_PTR /*id*/, DWORD_PTR view) {
  if (const auto answer = reinterpret_cast<ControlView*>(view)->filter(message, w, l)) {
    return *answer;
  }
  return DefSubclassProc(window, message, w, l);
}

}  // namespace quillvane
