#include "controls/tray_area.h"

#include <memory>

#include "platform/unicode_case.h"

namespace quillvane {

namespace {

// The icon of the program, which the system has: nothing of it is needed here.
const StoredPicture& icon_of_the_program() {
  static const StoredPicture icon = std::make_shared<const Image>();
  return icon;
}

enum class TrayEvent { kNone, kDown, kUp, kDoubleClick };

struct TrayMessage {
  int number;  // of Windows
  TrayEvent event;
  int button;
};

// A move raises nothing.
constexpr TrayMessage kMessages[] = {
    {512, TrayEvent::kNone, 0},        {513, TrayEvent::kDown, 1}, {514, TrayEvent::kUp, 1},
    {515, TrayEvent::kDoubleClick, 1}, {516, TrayEvent::kDown, 2}, {517, TrayEvent::kUp, 2},
    {518, TrayEvent::kDoubleClick, 2},
};

}  // namespace

TrayArea::TrayArea(Window& window, std::string_view name, Tray& tray, std::string_view tool_tip)
    : Control(window, name), tray_(tray), tool_tip_(tool_tip), icon_(icon_of_the_program()) {}

TrayArea::~TrayArea() {
  if (icon_visible_) tray_.remove(this);
}

void TrayArea::set_icon_visible(bool visible) {
  if (icon_visible_ == visible) return;
  icon_visible_ = visible;
  if (visible) {
    tray_.add(this, tool_tip_, [this](int message) { mouse_message(message); });
  } else {
    tray_.remove(this);
  }
  notify(Change::kVisible);
}

void TrayArea::set_tool_tip(std::string_view text) {
  tool_tip_ = text;
  if (icon_visible_) tray_.modify(this, tool_tip_);
}

void TrayArea::set_icon(StoredPicture icon) {
  icon_ = std::move(icon);
  if (icon_ == nullptr) return set_icon_visible(false);
  if (icon_visible_) tray_.modify(this, tool_tip_);
}

void TrayArea::read_properties(const PropertyStore& store) {
  set_tool_tip(store.get<std::string>("ToolTip", {}));
  set_icon(store.get("Icon", icon_of_the_program()));
  set_icon_visible(icon_ != nullptr && store.get("Visible", false));
}

void TrayArea::write_properties(PropertyStore& store) const {
  store.set("Icon", icon_);
  store.set("ToolTip", tool_tip_);
  store.set("Visible", icon_visible_);
}

void TrayArea::mouse_message(int message) {
  for (const TrayMessage& known : kMessages) {
    if (known.number != message) continue;
    if (known.event == TrayEvent::kDown && on_mouse_down) on_mouse_down(known.button);
    if (known.event == TrayEvent::kUp && on_mouse_up) on_mouse_up(known.button);
    if (known.event == TrayEvent::kDoubleClick) double_click();
  }
}

void TrayArea::click() {
  constexpr int kLeft = 1;
  if (icon_visible_ && on_mouse_down) on_mouse_down(kLeft);
  if (icon_visible_ && on_mouse_up) on_mouse_up(kLeft);
}

void TrayArea::double_click() {
  if (icon_visible_ && on_double_click) on_double_click();
}

std::optional<PropertyValue> TrayArea::property(std::string_view name) const {
  if (same_name(name, "visible")) return icon_visible_;
  return Control::property(name);
}

}  // namespace quillvane
