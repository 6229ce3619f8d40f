// A tool bar. Buttons count from 1; separators take a number too.
#pragma once

#include <functional>
#include <vector>

#include "forms/control.h"

namespace quillvane {

struct ToolbarButton {
  int image = 0;  // from 1; 0 for a separator
  bool separator = false;
  bool enabled = true;
  bool visible = true;
};

class Toolbar : public Control {
 public:
  using Control::Control;

  void set_buttons(std::vector<ToolbarButton> buttons) { buttons_ = std::move(buttons); }
  [[nodiscard]] int count() const { return static_cast<int>(buttons_.size()); }
  // Null when there is no button of that number.
  [[nodiscard]] const ToolbarButton* button(int number) const;
  void set_button_enabled(int number, bool enabled);
  void set_button_visible(int number, bool visible);

  // The user's click. Does nothing on a disabled or missing button, or on a separator. A hidden
  // button can be clicked, as any hidden control, by whoever needs no screen for it.
  void click_button(int number);

  // Besides the common ones: Count.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void(int number)> on_button_click;

 private:
  std::vector<ToolbarButton> buttons_;
};

}  // namespace quillvane
