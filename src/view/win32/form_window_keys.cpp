// Keys that mean the same wherever the focus is.
#include "forms/buttons.h"
#include "view/win32/form_window.h"

namespace quillvane {

void FormWindow::click(std::string_view name) {
  if (auto* control = dynamic_cast<Clickable*>(model_.find(name))) {
    const auto meanwhile = control->enabled() ? layout_.while_reading(name) : WhileReading::kWaits;
    act([control] { control->click(); }, meanwhile);
  }
}

// Drawn, and not where the user is. What is not drawn is never out of sight.
bool FormWindow::is_out_of_sight(std::string_view name) const {
  bool is_drawn = false;
  for (std::size_t i = 0; i < views_.size(); ++i) {
    if (views_[i]->place().name != name) continue;
    if (is_shown(i)) return false;
    is_drawn = true;
  }
  return is_drawn;
}

bool FormWindow::click_by_key(WPARAM key) {
  for (const KeyClick& known : layout_.keys) {
    if (key != static_cast<WPARAM>(known.key) || is_out_of_sight(known.control)) continue;
    click(known.control);
    return true;
  }
  return false;
}

bool FormWindow::press_focused_or_default(HWND focused) {
  ControlView* view = view_of(focused);
  if (view != nullptr && view->press()) return true;
  if (layout_.default_button.empty()) return false;
  click(layout_.default_button);
  return true;
}

bool FormWindow::take_key(MSG& message) {
  const bool is_ours = message.hwnd == window_ || IsChild(window_, message.hwnd) != 0;
  if (!is_ours) return false;
  if (message.message == WM_KEYDOWN) {
    const bool is_for_choices = choices_ != nullptr && message.hwnd == choices_->window();
    if (is_for_choices && choices_->take_key(message.wParam)) return true;
    if (pages_ != nullptr && message.wParam == VK_TAB && GetKeyState(VK_CONTROL) < 0) {
      pages_->turn();
      return true;
    }
    if (click_by_key(message.wParam)) return true;
    if (message.wParam == VK_RETURN && press_focused_or_default(message.hwnd)) return true;
  }
  return IsDialogMessageW(window_, &message) != FALSE;
}

}  // namespace quillvane
