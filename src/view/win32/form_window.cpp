#include "view/win32/form_window.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "forms/list_view.h"
#include "platform/win32/wide_text.h"
#include "view/win32/dispatch.h"
#include "view/win32/popup_menu.h"
#include "view/win32/screen.h"
#include "view/win32/toolbar_binding.h"

namespace quillvane {

namespace {

constexpr UINT kActMessage = WM_APP + 10;
constexpr UINT kRefreshMessage = WM_APP + 11;
constexpr UINT_PTR kRefreshTimer = 1;
constexpr std::uint64_t kRefreshMs = 100;  // the least between two drawings of what has changed
constexpr int kFontPoints = 9;
constexpr WORD kProgramIcon = 1;
constexpr UINT kDpiChanged = 0x02E0;  // WM_DPICHANGED, of Windows 8.1

const wchar_t* register_class(WNDPROC procedure) {
  WNDCLASSEXW type{};
  type.cbSize = sizeof(type);
  type.style = CS_DROPSHADOW | CS_HREDRAW | CS_VREDRAW;
  type.lpfnWndProc = procedure;
  type.hInstance = GetModuleHandleW(nullptr);
  type.hIcon = LoadIconW(type.hInstance, MAKEINTRESOURCEW(kProgramIcon));
  type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  type.lpszClassName = kFormWindowClass;
  RegisterClassExW(&type);  // fails when another window did it already
  return kFormWindowClass;
}

}  // namespace

FormWindow::FormWindow(Window& model, const WindowLayout& layout, HWND owner,
                       std::function<bool()> ended)
    : model_(model), layout_(layout), owner_(owner), ended_(std::move(ended)) {
  dpi_ = dpi_of(owner_);
  create();
  dpi_ = dpi_of(window_);
  restyle();
  make_controls();
  arrange_controls();
  refresh();
  model_.on_view_change = [this] { show_window(); };
  show_window();
}

FormWindow::~FormWindow() {
  model_.on_view_change = nullptr;
  for (Control* control : observed_) control->unobserve(*this);
  free_owner();
  views_.clear();
  tabs_ = nullptr;
  pages_ = nullptr;
  choices_ = nullptr;
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  DestroyWindow(window_);
}

void FormWindow::create() {
  // No caption: the title bar is the program's own. The frame that sizes is there, though unseen.
  DWORD style = WS_POPUP | WS_SYSMENU | WS_CLIPCHILDREN;
  DWORD extended_style = WS_EX_CONTROLPARENT;
  if (layout_.can_be_sized()) style |= WS_THICKFRAME;
  if (owner_ == nullptr) {
    style |= WS_MINIMIZEBOX;
    extended_style |= WS_EX_APPWINDOW;
  }
  const RECT place = first_place();
  window_ = CreateWindowExW(extended_style, register_class(&FormWindow::procedure),
                            widen(title()).c_str(), style, place.left, place.top,
                            place.right - place.left, place.bottom - place.top, owner_, nullptr,
                            GetModuleHandleW(nullptr), nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetWindowPos(window_, nullptr, 0, 0, 0, 0,
               SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT CALLBACK FormWindow::procedure(HWND window, UINT message, WPARAM w, LPARAM l) {
  auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  if (self != nullptr) return self->handle(message, w, l);
  if (message == WM_NCCALCSIZE) return 0;
  return DefWindowProcW(window, message, w, l);
}

LRESULT FormWindow::handle(UINT message, WPARAM w, LPARAM l) {
  if (const auto answer = handle_frame(message, w, l)) return *answer;
  if (const auto answer = handle_controls(message, w, l)) return *answer;
  if (const auto answer = handle_looks(message, w, l)) return *answer;
  return DefWindowProcW(window_, message, w, l);
}

std::optional<LRESULT> FormWindow::handle_frame(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_NCCALCSIZE:
      return 0;  // the whole window is the program's to draw
    case WM_NCACTIVATE:
      return TRUE;  // without the frame that Windows would draw
    case WM_NCPAINT:
      return 0;
    case WM_NCHITTEST:
      return part_at({static_cast<short>(LOWORD(l)), static_cast<short>(HIWORD(l))});
    case WM_GETMINMAXINFO:
      limit_size(*reinterpret_cast<MINMAXINFO*>(l));
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      paint();
      return 0;
    case WM_SYSCOMMAND:
      if ((w & 0xFFF0U) != SC_MINIMIZE) return std::nullopt;
      act([this] { model_.minimise(); }, WhileReading::kActsNow);
      return 0;
    case WM_CLOSE:
      act([this] { model_.close(); }, WhileReading::kEndsIt);
      return 0;
    case WM_ENDSESSION:
      if (w != 0) model_.close();
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> FormWindow::handle_controls(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case kActMessage:
      run_acts();
      return 0;
    case kRefreshMessage:
      refresh();
      return 0;
    case WM_TIMER:
      if (w == kRefreshTimer) refresh();
      return 0;
    case WM_COMMAND: {
      ControlView* view = view_of(reinterpret_cast<HWND>(l));
      // A tool bar tells the number of the button, others what happened.
      const int number = LOWORD(w);
      if (view != nullptr) {
        view->commanded(number > ToolbarBinding::kFirstCommand ? number : HIWORD(w));
      }
      return 0;
    }
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(l);
      if (tabs_ != nullptr && header.hwndFrom == tabs_->window()) {
        if (header.code == static_cast<UINT>(TCN_SELCHANGE)) show_controls();
        return 0;
      }
      if (pages_ != nullptr && header.hwndFrom == pages_->window()) {
        if (header.code == static_cast<UINT>(TCN_SELCHANGE)) pages_->chosen();
        return 0;
      }
      ControlView* view = view_of(header.hwndFrom);
      return view != nullptr ? view->notified(header) : std::nullopt;
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(l);
      if (choices_ != nullptr && item.hwndItem == choices_->window()) {
        choices_->draw(item);
        return TRUE;
      }
      if (ControlView* view = view_of(item.hwndItem)) view->draw(item);
      return TRUE;
    }
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLOREDIT: {
      ControlView* view = view_of(reinterpret_cast<HWND>(l));
      const HBRUSH brush = view != nullptr ? view->prepare(reinterpret_cast<HDC>(w)) : nullptr;
      if (brush == nullptr) return std::nullopt;
      return reinterpret_cast<LRESULT>(brush);
    }
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> FormWindow::handle_looks(UINT message, WPARAM w, LPARAM l) {
  switch (message) {
    case WM_SIZE:
      if (w != SIZE_MINIMIZED) arrange_controls();
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(w) != WA_INACTIVE) keep_focus();
      return std::nullopt;
    case WM_SETFOCUS:
      keep_focus();
      return 0;
    case kDpiChanged: {
      dpi_ = HIWORD(w);
      const RECT& place = *reinterpret_cast<const RECT*>(l);
      restyle();
      SetWindowPos(window_, nullptr, place.left, place.top, place.right - place.left,
                   place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
      arrange_controls();
      return 0;
    }
    case WM_SYSCOLORCHANGE:
    case WM_THEMECHANGED:
    case WM_SETTINGCHANGE:
      restyle();
      return 0;
    default:
      return std::nullopt;
  }
}

void FormWindow::act(std::function<void()> act, WhileReading meanwhile) {
  if (is_reading_ && meanwhile == WhileReading::kActsNow) return act();
  acts_.push_back({std::move(act), meanwhile});
  PostMessageW(window_, kActMessage, 0, 0);
}

// One message for each act. An act may serve the message loop itself and so run those that follow.
void FormWindow::run_acts() {
  if (acts_.empty() || ended_() || is_reading_) return;
  const std::function<void()> act = std::move(acts_.front().run);
  acts_.pop_front();
  note_focus();
  act();
  if (ended_()) ShowWindow(window_, SW_HIDE);
}

// The messages that ask for the acts are taken here without effect, also by the loops of Windows'
// own (a window that is being moved); so each act gets a new one.
bool FormWindow::serve_reading(const std::wstring& folder) {
  is_reading_ = true;
  for (const auto& view : views_) view->show_reading(folder);
  dispatch_waiting(window_, 0, 0, [this](MSG& message) { return take_key(message); });
  is_reading_ = false;
  for (std::size_t i = 0; i < acts_.size(); ++i) PostMessageW(window_, kActMessage, 0, 0);
  return std::none_of(acts_.begin(), acts_.end(),
                      [](const UserAct& act) { return act.meanwhile == WhileReading::kEndsIt; });
}

// No is the button in hand.
bool FormWindow::confirms(std::string_view control) {
  for (const AskedClick& asked : layout_.asked_clicks) {
    if (asked.control != control) continue;
    const auto* list = dynamic_cast<const ListView*>(model_.find(asked.list));
    const int rows = list != nullptr ? list->count() : 0;
    const std::string text = std::to_string(rows) + " " + std::string(asked.question);
    return MessageBoxW(window_, widen(text).c_str(), widen(title()).c_str(),
                       MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2) == IDYES;
  }
  return true;
}

void FormWindow::needs_refresh() {
  if (refresh_is_due_) return;
  refresh_is_due_ = true;
  const std::uint64_t waited = GetTickCount64() - refreshed_ms_;
  if (waited >= kRefreshMs) {
    PostMessageW(window_, kRefreshMessage, 0, 0);
  } else {
    SetTimer(window_, kRefreshTimer, static_cast<UINT>(kRefreshMs - waited), nullptr);
  }
}

void FormWindow::refresh() {
  KillTimer(window_, kRefreshTimer);
  refresh_is_due_ = false;
  for (const auto& view : views_) view->refresh();
  if (wanted_widths() != arranged_widths_) arrange_controls();
  show_side();
  show_controls();
  if (choices_ != nullptr) choices_->refresh();
  keep_focus();
  refreshed_ms_ = GetTickCount64();
}

void FormWindow::changed(Control& /*control*/, Change what) {
  if (what != Change::kCaption) return needs_refresh();
  SetWindowTextW(window_, widen(title()).c_str());
  InvalidateRect(window_, nullptr, FALSE);
}

void FormWindow::restyle() {
  theme_ = make_theme(shown_color(model_.back_color()), system_colors(), high_contrast());
  FontOwner font = make_font(kFontPoints, FW_NORMAL, dpi_);
  FontOwner bold_font = make_font(kFontPoints, FW_SEMIBOLD, dpi_);
  std::swap(font, font_);  // the old ones stay until no control uses them
  std::swap(bold_font, bold_font_);
  for (const auto& view : views_) view->restyle();
  if (tabs_ != nullptr) tabs_->restyle();
  if (pages_ != nullptr) pages_->restyle();
  if (choices_ != nullptr) choices_->restyle();
  needs_refresh();
  InvalidateRect(window_, nullptr, TRUE);
}

void FormWindow::show_menu(const Menu& menu, POINT place) {
  refresh();
  MenuEntry* entry = choose_from(menu, window_, place);
  if (entry != nullptr) act([entry] { entry->click(); });
}

}  // namespace quillvane
