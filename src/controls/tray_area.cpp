#include "controls/tray_area.h"

#include "platform/unicode_case.h"

namespace quillvane {

TrayArea::TrayArea(Window& window, std::string_view name, Tray& tray, std::string_view tool_tip)
    : Control(window, name), tray_(tray), tool_tip_(tool_tip) {}

TrayArea::~TrayArea() {
  if (icon_visible_) tray_.remove();
}

void TrayArea::set_icon_visible(bool visible) {
  if (icon_visible_ == visible) return;
  icon_visible_ = visible;
  if (visible) {
    tray_.add(tool_tip_, [this] { double_click(); });
  } else {
    tray_.remove();
  }
  notify(Change::kVisible);
}

void TrayArea::set_tool_tip(std::string_view text) {
  tool_tip_ = text;
  if (icon_visible_) tray_.modify(tool_tip_);
}

void TrayArea::double_click() {
  if (icon_visible_ && on_double_click) on_double_click();
}

std::optional<PropertyValue> TrayArea::property(std::string_view name) const {
  if (same_name(name, "visible")) return icon_visible_;
  return Control::property(name);
}

}  // namespace quillvane
