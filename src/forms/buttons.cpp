#include "forms/buttons.h"

#include "platform/unicode_case.h"

namespace quillvane {

void Clickable::set_caption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  notify(Change::kCaption);
}

void Clickable::click() {
  if (enabled() && on_click) on_click();
}

std::optional<PropertyValue> Clickable::property(std::string_view name) const {
  if (same_name(name, "caption") || same_name(name, "text")) return caption_;
  return Control::property(name);
}

std::optional<PropertyValue> Label::property(std::string_view name) const {
  if (same_name(name, "tag")) return tag_;
  return Clickable::property(name);
}

void Button::set_back_over(Color color) {
  if (back_over_ == color) return;
  back_over_ = color;
  notify(Change::kColor);
}

void CheckBox::set_checked(bool checked) {
  if (checked_ == checked) return;
  checked_ = checked;
  notify(Change::kValue);
  if (on_click) on_click();
}

void CheckBox::click() {
  if (enabled()) set_checked(!checked_);
}

std::optional<PropertyValue> CheckBox::property(std::string_view name) const {
  if (same_name(name, "value")) return std::int64_t{checked_ ? 1 : 0};
  return Clickable::property(name);
}

void OptionButton::choose() {
  for (OptionButton* other : group_) {
    if (other == this || !other->chosen_) continue;
    other->chosen_ = false;
    other->notify(Change::kValue);
  }
  if (!chosen_) {
    chosen_ = true;
    notify(Change::kValue);
  }
  if (on_click) on_click();
}

void OptionButton::clear() {
  if (!chosen_) return;
  chosen_ = false;
  notify(Change::kValue);
}

void OptionButton::click() {
  if (enabled()) choose();
}

std::optional<PropertyValue> OptionButton::property(std::string_view name) const {
  if (same_name(name, "value")) return chosen_;
  return Clickable::property(name);
}

std::optional<PropertyValue> Menu::property(std::string_view name) const {
  if (same_name(name, "caption")) return caption_;
  return Control::property(name);
}

}  // namespace quillvane
