#include "forms/toolbar.h"

#include "platform/unicode_case.h"

namespace quillvane {

const ToolbarButton* Toolbar::button(int number) const {
  if (number < 1 || number > count()) return nullptr;
  return &buttons_[static_cast<std::size_t>(number) - 1];
}

void Toolbar::set_button_enabled(int number, bool enabled) {
  if (button(number) == nullptr) return;
  buttons_[static_cast<std::size_t>(number) - 1].enabled = enabled;
  notify(Change::kItemState);
}

void Toolbar::set_button_visible(int number, bool visible) {
  if (button(number) == nullptr) return;
  buttons_[static_cast<std::size_t>(number) - 1].visible = visible;
  notify(Change::kItemState);
}

void Toolbar::click_button(int number) {
  const ToolbarButton* pressed = button(number);
  if (pressed == nullptr || pressed->separator) return;
  if (enabled() && pressed->enabled && on_button_click) on_button_click(number);
}

std::optional<PropertyValue> Toolbar::property(std::string_view name) const {
  if (same_name(name, "count")) return std::int64_t{count()};
  return Control::property(name);
}

}  // namespace quillvane
