// The program's icon in the notification area, shown while the window is minimised.
#pragma once

#include <functional>
#include <string>

#include "controls/property_store.h"
#include "forms/control.h"
#include "platform/tray.h"

namespace quillvane {

class TrayArea : public Control {
 public:
  // Its icon is the program's until it gets another.
  TrayArea(Window& window, std::string_view name, Tray& tray, std::string_view tool_tip = {});
  // Takes the icon away.
  ~TrayArea() override;

  // Shows or hides the icon. (The control itself is never seen in the window.)
  void set_icon_visible(bool visible);
  [[nodiscard]] bool icon_visible() const { return icon_visible_; }
  [[nodiscard]] const std::string& tool_tip() const { return tool_tip_; }
  void set_tool_tip(std::string_view text);
  // Null: none, which hides it.
  void set_icon(StoredPicture icon);
  [[nodiscard]] const StoredPicture& icon() const { return icon_; }

  void read_properties(const PropertyStore& store);
  void write_properties(PropertyStore& store) const;

  // What the mouse does to the icon, as Windows numbers it; other numbers are passed over.
  void mouse_message(int message);
  // The same as it arrives: as the place of a move over the control, in twips.
  void mouse_move(int x, int twips_per_pixel) { mouse_message(x / twips_per_pixel); }
  // The user's click on the icon. Does nothing while it is not shown.
  void click();
  // The user's double click on the icon, with either button.
  void double_click();

  // Visible tells whether the icon is shown.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void(int button)> on_mouse_down;
  std::function<void(int button)> on_mouse_up;
  std::function<void()> on_double_click;

 private:
  Tray& tray_;
  std::string tool_tip_;
  StoredPicture icon_;
  bool icon_visible_ = false;
};

}  // namespace quillvane
