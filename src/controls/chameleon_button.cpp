#include "controls/chameleon_button.h"

#include <utility>

#include "platform/unicode_case.h"

namespace quillvane {

chameleonButton::chameleonButton(Window& window, std::string_view name, const Design& design)
    : Button(window, name, design) {
  set_back_color(kButtonFace);
  set_fore_color(kButtonText);
  set_back_over(kButtonFace);
  observe(*this);
}

chameleonButton::~chameleonButton() { detach(); }

void chameleonButton::attach(ButtonHost& host, MessageLoop& loop) {
  detach();
  host_ = &host;
  loop_ = &loop;
}

void chameleonButton::detach() {
  stop_over_timer();
  shown_ = false;
  host_ = nullptr;
  loop_ = nullptr;
}

void chameleonButton::changed_property(std::string_view key) {
  if (reading_) return;
  draw(drawn_.state, true);
  notify(Change::kRefresh);
  if (on_property_changed) on_property_changed(key);
}

// The properties that it shares with all buttons.
void chameleonButton::changed(Control& /*control*/, Change what) {
  if (reading_) return;
  if (what == Change::kCaption) return changed_property("TX");
  if (what == Change::kEnabled) return changed_property("ENAB");
  if (what != Change::kColor) return;
  if (back_color() != back_seen_) {
    back_seen_ = back_color();
    if (!running_) set_back_over(back_seen_);
    changed_property("BCOL");
  } else if (fore_color() != fore_seen_) {
    fore_seen_ = fore_color();
    if (!running_) set_fore_over(fore_seen_);
    changed_property("FCOL");
  } else {
    changed_property("BCOLO");
  }
}

void chameleonButton::set_button_type(int type) {
  if (type < kFirstButtonType || type > kLastButtonType) return;
  type_ = type;
  if (type == 11 && shown_) refresh_background();
  rebuild_shape();
  changed_property("BTYPE");
}

void chameleonButton::set_hand_pointer(bool hand) {
  constexpr int kPlainPointer = 0;
  constexpr int kCustomPointer = 99;
  mouse_pointer_ = hand ? kCustomPointer : kPlainPointer;
  set("HAND", hand_pointer_, hand);
}

void chameleonButton::refresh() {
  refresh_disabled_ = false;
  rebuild_shape();
  draw(drawn_.state, true);
  Control::refresh();
}

void chameleonButton::set_default(bool is_default) {
  if (is_default_ == is_default) return;
  is_default_ = is_default;
  draw(drawn_.state, true);
}

void chameleonButton::ambient_changed() {
  if (scheme_ != ColorScheme::kCustom) draw(drawn_.state, true);
}

void chameleonButton::resize(Size size) {
  size_ = size;
  rebuild_shape();
}

void chameleonButton::rebuild_shape() {
  if (refresh_disabled_) return;
  if (host_ != nullptr) host_->set_region(button_region(type_, size_));
  if (size_.height > 0) draw(kNormalState, true);
}

void chameleonButton::refresh_background() {
  if (host_ != nullptr) back_buffer_ = host_->background();
}

void chameleonButton::appear() {
  if (type_ == 11 && back_buffer_.empty()) refresh_background();
  shown_ = true;
  draw(kNormalState, true);
}

void chameleonButton::draw(int state, bool force) {
  // What is pressed has the mouse over it, whether that was told or not.
  const bool hovering = over_ || state == kPressedState;
  if (check_box_behaviour_ && value_) state = kPressedState;
  if (!force && state == drawn_.state && caption() == drawn_.caption) return;
  if (size_.height == 0 || !shown_) return;
  drawn_ = {state, caption(), hovering};
  if (host_ != nullptr) host_->redraw();
}

void chameleonButton::redraw_now() {
  if (host_ != nullptr) host_->repaint_now();
}

ButtonPaint chameleonButton::looks() const {
  return {.type = type_,
          .size = size_,
          .colors = {.scheme = scheme_,
                     .back = back_color(),
                     .back_over = back_over(),
                     .fore = fore_color(),
                     .fore_over = fore_over_,
                     .mask = mask_color_,
                     .soft_bevel = soft_bevel_},
          .caption = drawn_.caption,
          .font = font_,
          .enabled = enabled(),
          .pressed = drawn_.state == kPressedState,
          .hovering = drawn_.hovering,
          .focused = has_focus_,
          .is_default = is_default_,
          .show_focus_rect = show_focus_rect_,
          .special_effect = special_effect_,
          .picture = picture_normal_.get(),
          .picture_over = picture_over_.get(),
          .background = back_buffer_.empty() ? nullptr : &back_buffer_,
          .picture_position = picture_position_,
          .use_mask_color = use_mask_color_,
          .use_greyscale = use_greyscale_};
}

void chameleonButton::paint(Canvas& canvas) const { paint_button(canvas, looks()); }

std::optional<PropertyValue> chameleonButton::property(std::string_view name) const {
  if (same_name(name, "value")) return value_;
  return Button::property(name);
}

}  // namespace quillvane
