// The controls of the window: making them, placing them, and which of them show.
#include <algorithm>

#include "platform/win32/wide_text.h"
#include "view/win32/control_factory.h"
#include "view/win32/form_window.h"

namespace quillvane {

void FormWindow::make_controls() {
  for (const ControlPlace& place : layout_.controls) {
    if (!place.tab.empty() && tabs_ == nullptr) tabs_ = std::make_unique<TabStrip>(*this);
    Control* control = model_.find(place.name);
    auto view = control != nullptr ? make_control_view(*this, *control, place) : nullptr;
    if (view != nullptr) {
      if (place.kind == ControlKind::kTitleButton) {
        hints_.add(window_, view->window(), widen(place.accessible_name));
      } else if (!control->tool_tip().empty()) {
        hints_.add(window_, view->window(), widen(control->tool_tip()));
      }
      views_.push_back(std::move(view));
    }
    watch(place.page);
  }
  watch(layout_.title);
  if (layout_.choices.panel.empty()) return;
  watch(layout_.choices.panel);
  choices_ = std::make_unique<ChoiceList>(*this, model_);
}

void FormWindow::watch(std::string_view name) {
  Control* control = name.empty() ? nullptr : model_.find(name);
  if (control == nullptr) return;
  if (std::find(observed_.begin(), observed_.end(), control) != observed_.end()) return;
  observed_.push_back(control);
  control->observe(*this);
}

ControlView* FormWindow::view_of(HWND window) const {
  const auto found = std::find_if(views_.begin(), views_.end(),
                                  [window](const auto& view) { return view->window() == window; });
  return found == views_.end() ? nullptr : found->get();
}

// Of the controls that get wider with their captions.
std::vector<int> FormWindow::wanted_widths() const {
  std::vector<int> wanted;
  for (const auto& view : views_) {
    wanted.push_back(view->place().pack == Pack::kFill ? 0 : view->wanted_width());
  }
  return wanted;
}

void FormWindow::arrange_controls() {
  if (views_.empty()) return;
  arranged_widths_ = wanted_widths();
  RECT area{};
  GetClientRect(window_, &area);
  const Arrangement places = arrange(layout_, area.right, area.bottom, dpi_, arranged_widths_);
  if (choices_ != nullptr) choices_->place(area.right);
  for (std::size_t i = 0; i < views_.size(); ++i) {
    const Box& box = places.controls[i];
    MoveWindow(views_[i]->window(), box.left - views_[i]->overhang(), box.top, box.width,
               box.height, TRUE);
    const Box& strip = places.tab_strips[i];
    if (tabs_ != nullptr && strip.height > 0) {
      tabs_->move(strip);
    }
  }
  InvalidateRect(window_, nullptr, TRUE);
}

bool FormWindow::is_shown(const ControlView& view) const {
  const ControlPlace& place = view.place();
  if (!view.model().visible()) return false;
  if (!is_page_shown(place.page)) return false;
  return place.tab.empty() || tabs_ == nullptr || tabs_->chosen() == place.tab;
}

// Of the frames of the stack the first that is there hides the others.
bool FormWindow::is_page_shown(std::string_view page) const {
  const auto is_there = [this](std::string_view frame) {
    const Control* control = frame.empty() ? nullptr : model_.find(frame);
    return control == nullptr || control->visible();
  };
  const int place = layout_.stacked(page);
  for (int above = 0; above < place; ++above) {
    if (is_there(layout_.stack[static_cast<std::size_t>(above)])) return false;
  }
  return is_there(page);
}

void FormWindow::show_controls() {
  bool has_tabs = false;
  for (const auto& view : views_) {
    const bool shown = is_shown(*view);
    const bool is_visible = (GetWindowLongW(view->window(), GWL_STYLE) & WS_VISIBLE) != 0;
    if (shown != is_visible) ShowWindow(view->window(), shown ? SW_SHOWNA : SW_HIDE);
    if (shown && !view->place().tab.empty()) has_tabs = true;
  }
  if (tabs_ != nullptr) ShowWindow(tabs_->window(), has_tabs ? SW_SHOWNA : SW_HIDE);
}

bool FormWindow::takes_keys(HWND control) const {
  return IsChild(window_, control) != 0 && IsWindowEnabled(control) != 0 &&
         IsWindowVisible(control) != 0;
}

void FormWindow::note_focus() {
  const HWND focused = GetFocus();
  if (takes_keys(focused)) last_focus_ = focused;
}

HWND FormWindow::first_focus() const {
  for (const auto& view : views_) {
    const ControlKind kind = view->place().kind;
    if (kind == ControlKind::kToolbar || kind == ControlKind::kTitleButton) continue;
    const bool is_stop = (GetWindowLongW(view->window(), GWL_STYLE) & WS_TABSTOP) != 0;
    if (is_stop && takes_keys(view->window())) return view->window();
  }
  return nullptr;
}

// The focus must not stay on what is disabled or hidden: keys would go nowhere. It goes back to
// where it was before another window took it.
void FormWindow::keep_focus() {
  const HWND focused = GetFocus();
  if (focused == nullptr && GetActiveWindow() != window_) return;
  if (focused != nullptr && focused != window_ && IsChild(window_, focused) == 0) return;
  if (takes_keys(focused)) return;
  const HWND next = takes_keys(last_focus_) ? last_focus_ : first_focus();
  if (next != nullptr) SetFocus(next);
}

}  // namespace quillvane
