#include "forms/control.h"

#include <algorithm>

#include "forms/field.h"
#include "forms/window.h"
#include "platform/unicode_case.h"

namespace quillvane {

Control::Control(Window& window, std::string_view name, const Design& design)
    : window_(window),
      name_(name),
      tool_tip_(design.tool_tip),
      enabled_(!design.disabled),
      visible_(!design.hidden) {
  window_.add_control(*this);
}

void Control::set_enabled(bool enabled) {
  const bool before = this->enabled();
  enabled_ = enabled;
  if (this->enabled() != before) notify(Change::kEnabled);
}

void Control::set_locked(bool locked) {
  const bool before = enabled();
  locked_ = locked;
  if (enabled() != before) notify(Change::kEnabled);
}

void Control::set_visible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  notify(Change::kVisible);
}

void Control::set_fore_color(Color color) {
  if (fore_color_ == color) return;
  fore_color_ = color;
  notify(Change::kColor);
}

void Control::set_back_color(Color color) {
  if (back_color_ == color) return;
  back_color_ = color;
  notify(Change::kColor);
}

void Control::move(int left, int top) {
  if (left_ == left && top_ == top) return;
  left_ = left;
  top_ = top;
  notify(Change::kPosition);
}

void Control::set_height(int twips) {
  if (height_ == twips) return;
  height_ = twips;
  notify(Change::kPosition);
}

void Control::set_font(const Font& font) {
  if (font_ == font) return;
  font_ = font;
  notify(Change::kFont);
}

std::optional<PropertyValue> Control::font_property(std::string_view key) const {
  const Font font = font_.value_or(Font{});
  if (key == "fontname") return font.name;
  if (key == "fontsize") return property_of(font.size_points);
  if (key == "fontcharset") return std::int64_t{font.character_set};
  return std::nullopt;
}

std::optional<PropertyValue> Control::property(std::string_view name) const {
  const std::string key = lower_case(name);
  if (key == "enabled") return enabled();
  if (key == "visible") return visible_;
  if (key == "forecolor") return color_number(fore_color_);
  if (key == "backcolor") return color_number(back_color_);
  if (key == "left") return std::int64_t{left_};
  if (key == "top") return std::int64_t{top_};
  if (key == "height") return std::int64_t{height_};
  return font_property(key);
}

void Control::unobserve(const ControlObserver& observer) { std::erase(observers_, &observer); }

}  // namespace quillvane
