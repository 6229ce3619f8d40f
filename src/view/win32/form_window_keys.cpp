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

bool FormWindow::click_by_key(WPARAM key) {
  for (const KeyClick& known : layout_.keys) {
    if (key != static_cast<WPARAM>(known.key)) continue;
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
    if (click_by_key(message.wParam)) return true;
    if (message.wParam == VK_RETURN && press_focused_or_default(message.hwnd)) return true;
  }
  return IsDialogMessageW(window_, &message) != FALSE;
}

}  // namespace quillvane
