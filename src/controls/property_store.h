// What a control stores of itself: values under the keys of its properties.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

#include "forms/control.h"
#include "platform/image.h"
#include "platform/text_raster.h"

namespace quillvane {

using StoredPicture = std::shared_ptr<const Image>;  // null: no picture
using StoredValue = std::variant<bool, std::int64_t, double, std::string, FontStyle, StoredPicture>;

// A key that is not there, or holds another kind of value than is asked for, reads as the default.
class PropertyStore {
 public:
  void set(std::string_view key, StoredValue value) {
    values_.insert_or_assign(std::string(key), std::move(value));
  }
  void remove(std::string_view key) { values_.erase(std::string(key)); }
  [[nodiscard]] bool has(std::string_view key) const { return values_.contains(key); }
  [[nodiscard]] const auto& values() const { return values_; }

  template <typename T>
  [[nodiscard]] T get(std::string_view key, T missing) const {
    const auto found = values_.find(key);
    if (found == values_.end()) return missing;
    const T* value = std::get_if<T>(&found->second);
    return value == nullptr ? missing : *value;
  }
  [[nodiscard]] std::int32_t whole(std::string_view key, std::int32_t missing) const {
    return static_cast<std::int32_t>(get(key, std::int64_t{missing}));
  }
  // A whole number is a number too.
  [[nodiscard]] double number(std::string_view key, double missing) const {
    return get(key, static_cast<double>(get(key, static_cast<std::int64_t>(missing))));
  }
  [[nodiscard]] Color color(std::string_view key, Color missing) const {
    return static_cast<Color>(get(key, std::int64_t{missing}));
  }

  bool operator==(const PropertyStore&) const = default;

 private:
  std::map<std::string, StoredValue, std::less<>> values_;
};

}  // namespace quillvane
