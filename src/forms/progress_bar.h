// A bar that shows how far a run has come.
#pragma once

#include "forms/control.h"

namespace quillvane {

class ProgressBar : public Control {
 public:
  using Control::Control;

  [[nodiscard]] int minimum() const { return minimum_; }
  [[nodiscard]] int maximum() const { return maximum_; }
  [[nodiscard]] int value() const { return value_; }
  void set_range(int minimum, int maximum);
  // A value outside the range is passed over, as a step that fails.
  void set_value(int value);

  // Besides the common ones: Value, Min, Max.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

 private:
  int minimum_ = 0;
  int maximum_ = 100;
  int value_ = 0;
};

}  // namespace quillvane
