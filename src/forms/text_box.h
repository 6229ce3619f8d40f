// A text box. Several of them are hidden and serve as variables and as mail boxes between windows.
#pragma once

#include <functional>
#include <string>

#include "forms/control.h"

namespace quillvane {

class TextBox : public Control {
 public:
  using Control::Control;

  [[nodiscard]] const std::string& text() const { return text_; }

  // Runs on_change inside the assignment, and only when the text differs.
  void set_text(std::string_view text);

  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void()> on_change;

 private:
  std::string text_;
};

}  // namespace quillvane
