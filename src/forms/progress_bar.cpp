#include "forms/progress_bar.h"

#include "platform/unicode_case.h"

namespace quillvane {

void ProgressBar::set_range(int minimum, int maximum) {
  minimum_ = minimum;
  maximum_ = maximum;
  notify(Change::kValue);
}

void ProgressBar::set_value(int value) {
  if (value < minimum_ || value > maximum_ || value == value_) return;
  value_ = value;
  notify(Change::kValue);
}

std::optional<PropertyValue> ProgressBar::property(std::string_view name) const {
  if (same_name(name, "value")) return std::int64_t{value_};
  if (same_name(name, "min")) return std::int64_t{minimum_};
  if (same_name(name, "max")) return std::int64_t{maximum_};
  return Control::property(name);
}

}  // namespace quillvane
