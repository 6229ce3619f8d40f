// What the mouse and the keyboard do to a chameleonButton.

#include "controls/chameleon_button.h"

namespace quillvane {

namespace {

constexpr std::chrono::milliseconds kOverInterval{3};

enum KeyCode { kSpace = 32, kLeft = 37, kUp = 38, kRight = 39, kDown = 40 };

}  // namespace

void chameleonButton::mouse_down(const MouseEvent& event) {
  if (on_mouse_down) on_mouse_down(event);
  last_press_ = event;
  last_button_ = event.button;
  if (event.button != kRightMouseButton) draw(kPressedState, false);
}

// A quick second click presses too.
void chameleonButton::double_click() {
  if (last_button_ != kLeftMouseButton) return;
  mouse_down(last_press_);
  if (host_ != nullptr) host_->capture_mouse();
}

void chameleonButton::mouse_move(const MouseEvent& event) {
  if (on_mouse_move) on_mouse_move(event);
  if (event.button != kNoMouseButton && event.button != kLeftMouseButton) return;
  if (host_ == nullptr) return;
  if (!host_->cursor_is_over()) {
    draw(kNormalState, false);
    return;
  }
  if (event.button == kLeftMouseButton) {
    over_ = true;
    draw(kPressedState, false);
    over_ = false;
  } else if (!over_) {
    if (!over_timer_) {
      over_timer_ = loop_->start_timer(kOverInterval, [this] { over_tick(); });
    }
    over_ = true;
    draw(kNormalState, true);
    if (on_mouse_enter) on_mouse_enter();
  }
}

void chameleonButton::mouse_up(const MouseEvent& event) {
  if (on_mouse_up) on_mouse_up(event);
  if (event.button != kRightMouseButton) draw(kNormalState, false);
}

void chameleonButton::platform_click() {
  if (last_button_ != kLeftMouseButton || !enabled()) return;
  flip_value();
  draw(kNormalState, true);
  redraw_now();
  raise_click();
}

void chameleonButton::over_tick() {
  if (host_->cursor_is_over()) return;
  stop_over_timer();
  over_ = false;
  draw(kNormalState, true);
  if (on_mouse_leave) on_mouse_leave();
}

void chameleonButton::stop_over_timer() {
  if (over_timer_) loop_->stop_timer(*over_timer_);
  over_timer_.reset();
}

void chameleonButton::flip_value() {
  if (check_box_behaviour_) value_ = !value_;
}

void chameleonButton::key_down(int code, int shift) {
  if (on_key_down) on_key_down(code, shift);
  last_key_ = code & 0xFF;
  if (code == kSpace) draw(kPressedState, false);
  if (host_ == nullptr) return;
  if (code == kLeft || code == kUp) host_->send_keys("+{Tab}");
  if (code == kRight || code == kDown) host_->send_keys("{Tab}");
}

void chameleonButton::key_press(int ascii) {
  if (on_key_press) on_key_press(ascii);
}

void chameleonButton::key_up(int code, int shift) {
  if (on_key_up) on_key_up(code, shift);
  if (code != kSpace || last_key_ != kSpace) return;
  last_key_ = 0;
  if (!enabled()) return;
  flip_value();
  draw(kNormalState, false);
  redraw_now();
  raise_click();
}

void chameleonButton::access_key() {
  last_button_ = kLeftMouseButton;
  platform_click();
}

void chameleonButton::enter() {
  has_focus_ = true;
  draw(drawn_.state, true);
}

void chameleonButton::leave() {
  has_focus_ = false;
  // A key that is let go elsewhere presses nothing when the focus is back.
  last_key_ = 0;
  draw(drawn_.state, true);
}

}  // namespace quillvane
