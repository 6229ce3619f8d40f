#include "forms/window.h"

#include "platform/unicode_case.h"

namespace quillvane {

void Window::set_visible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  if (on_view_change) on_view_change();
}

void Window::set_topmost(bool topmost) {
  if (topmost_ == topmost) return;
  topmost_ = topmost;
  if (on_view_change) on_view_change();
}

void Window::set_state(WindowState state) {
  if (state_ == state) return;
  state_ = state;
  resized();
  if (on_view_change) on_view_change();
}

Control* Window::find(std::string_view name) const {
  const auto found = by_name_.find(lower_case(name));
  return found == by_name_.end() ? nullptr : found->second;
}

std::optional<PropertyValue> Window::field(std::string_view name) const {
  const auto found = fields_.find(lower_case(name));
  if (found == fields_.end()) return std::nullopt;
  return found->second();
}

void Window::add_field(std::string_view name, std::function<PropertyValue()> read) {
  fields_[lower_case(name)] = std::move(read);
}

void Window::add_second_name(std::string_view name, Control& control) {
  by_name_[lower_case(name)] = &control;
}

void Window::add_control(Control& control) {
  controls_.push_back(&control);
  by_name_[lower_case(control.name())] = &control;
}

}  // namespace quillvane
