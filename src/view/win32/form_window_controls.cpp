// The controls of the window: making them, placing them, and which of them show.
#include <algorithm>

#include "platform/win32/wide_text.h"
#include "view/win32/control_factory.h"
#include "view/win32/form_window.h"

namespace quillvane {

void FormWindow::make_controls() {
  if (!layout_.page_set.empty()) pages_ = std::make_unique<PageTabs>(*this, model_);
  make_controls_of(nullptr, layout_.controls);
  for (const PageGrid& page : layout_.page_set.pages) {
    make_controls_of(&page, page.controls);
    watch(page.frame);
  }
  watch(layout_.page_set.own_work);
  watch(layout_.page_set.pages_work);
  watch(layout_.title);
  if (layout_.choices.panel.empty()) return;
  watch(layout_.choices.panel);
  choices_ = std::make_unique<ChoiceList>(*this, model_);
}

void FormWindow::make_controls_of(const PageGrid* page, std::span<const ControlPlace> places) {
  for (const ControlPlace& place : places) {
    if (!place.tab.empty() && tabs_ == nullptr) {
      tabs_ = std::make_unique<TabStrip>(*this, L"Results", tabs_of(layout_), layout_.tab_height);
    }
    Control* control = model_.find(place.name);
    auto view = control != nullptr ? make_control_view(*this, *control, place) : nullptr;
    if (view == nullptr) continue;
    if (place.kind == ControlKind::kTitleButton) {
      hints_.add(window_, view->window(), widen(place.accessible_name));
    } else if (!control->tool_tip().empty()) {
      hints_.add(window_, view->window(), widen(control->tool_tip()));
    }
    views_.push_back(std::move(view));
    page_of_.push_back(page);
    watch(place.page);
  }
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
  std::span<const int> rest = arranged_widths_;
  const auto take = [&rest](std::size_t count) {
    const auto taken = rest.first(count);
    rest = rest.subspan(count);
    return taken;
  };
  place_controls(arrange(layout_, area.right, area.bottom, dpi_, take(layout_.controls.size())), 0);
  for (const PageGrid& page : layout_.page_set.pages) {
    const std::size_t first = arranged_widths_.size() - rest.size();
    place_controls(
        arrange(layout_, page, area.right, area.bottom, dpi_, take(page.controls.size())), first);
  }
  if (choices_ != nullptr) choices_->place(area.right);
  if (pages_ != nullptr) {
    pages_->move(row_box(layout_, layout_.page_set.tab_row, area.right, area.bottom, dpi_));
  }
  InvalidateRect(window_, nullptr, TRUE);
}

// Of one grid, whose first control is the view of that number.
void FormWindow::place_controls(const Arrangement& places, std::size_t first) {
  for (std::size_t i = 0; i < places.controls.size(); ++i) {
    const ControlView& view = *views_[first + i];
    const Box& box = places.controls[i];
    MoveWindow(view.window(), box.left - view.overhang(), box.top, box.width, box.height, TRUE);
    const Box& strip = places.tab_strips[i];
    if (tabs_ != nullptr && strip.height > 0) tabs_->move(strip);
  }
}

// The title bar's controls show on all pages.
bool FormWindow::is_shown(std::size_t number) const {
  const ControlView& view = *views_[number];
  const ControlPlace& place = view.place();
  if (!view.model().visible() && !place.though_hidden) return false;
  const bool is_on_title = page_of_[number] == nullptr && place.row == 0;
  if (pages_ != nullptr && !is_on_title && !pages_->shows(page_of_[number])) return false;
  if (!is_page_shown(place.page)) return false;
  return place.tab.empty() || tabs_ == nullptr || tabs_->chosen() == place.tab;
}

// Of the frames of the stack the first that is there hides the others. What two jobs share stays
// where the window's own controls show, whichever page is in front.
bool FormWindow::is_page_shown(std::string_view page) const {
  if (page == layout_.page_set.shared_page) return true;
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

// Who comes back to the window's own controls with the results of the other job is shown the list
// that holds them.
void FormWindow::show_side() {
  if (pages_ == nullptr) return;
  pages_->refresh();
  const bool is_own = pages_->shows(nullptr);
  const bool came_back = is_own && !shows_own_side_;
  shows_own_side_ = is_own;
  if (came_back && tabs_ != nullptr && pages_->holds_result_of_pages()) tabs_->choose_last();
}

void FormWindow::show_controls() {
  bool has_tabs = false;
  for (std::size_t i = 0; i < views_.size(); ++i) {
    const HWND window = views_[i]->window();
    const bool shown = is_shown(i);
    const bool is_visible = (GetWindowLongW(window, GWL_STYLE) & WS_VISIBLE) != 0;
    if (shown != is_visible) ShowWindow(window, shown ? SW_SHOWNA : SW_HIDE);
    if (shown && !views_[i]->place().tab.empty()) has_tabs = true;
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
