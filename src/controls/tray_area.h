// The program's icon in the notification area, shown while the window is minimised.
#pragma once

#include <functional>
#include <string>

#include "forms/control.h"
#include "platform/tray.h"

namespace quillvane {

class TrayArea : public Control {
 public:
  TrayArea(Window& window, std::string_view name, Tray& tray, std::string_view tool_tip = {});
  // Takes the icon away.
  ~TrayArea() override;

  // Shows or hides the icon. (The control itself is never seen in the window.)
  void set_icon_visible(bool visible);
  [[nodiscard]] bool icon_visible() const { return icon_visible_; }
  void set_tool_tip(std::string_view text);

  // The user's double click on the icon, with either button.
  void double_click();

  // Visible tells whether the icon is shown.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void()> on_double_click;

 private:
  Tray& tray_;
  std::string tool_tip_;
  bool icon_visible_ = false;
};

}  // namespace quillvane
