// A value of a window's state that is read by its name.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "forms/window.h"

namespace quillvane {

// As scripts read it: a number that is whole reads as a whole number.
inline PropertyValue property_of(bool value) { return value; }
inline PropertyValue property_of(int value) { return std::int64_t{value}; }
inline PropertyValue property_of(double value) {
  if (value == std::floor(value)) return static_cast<std::int64_t>(value);
  return value;
}
inline PropertyValue property_of(const std::string& value) { return value; }

// Used as the value itself. It registers itself on the window, which must outlive it.
template <typename T>
class Field {
 public:
  Field(Window& window, std::string_view name, T value = {}) : value_(std::move(value)) {
    window.add_field(name, [this] { return property_of(value_); });
  }
  Field(const Field&) = delete;
  Field& operator=(const Field&) = delete;

  Field& operator=(T value) {
    value_ = std::move(value);
    return *this;
  }
  template <typename Added>
  Field& operator+=(const Added& added) {
    value_ += added;
    return *this;
  }
  operator const T&() const { return value_; }  // NOLINT: it stands for its value
  [[nodiscard]] const T& value() const { return value_; }

 private:
  T value_;
};

}  // namespace quillvane
