// A plain list of strings. The windows keep hidden ones as working lists.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"

namespace quillvane {

class ListBox : public Control {
 public:
  using Control::Control;

  [[nodiscard]] int count() const { return static_cast<int>(items_.size()); }
  // Items count from 0, as in the handlers of the windows; empty when there is no such item.
  [[nodiscard]] std::string item(int index) const;
  [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
  // Raised by each change, so that callers can keep what they made of the items.
  [[nodiscard]] std::uint64_t version() const { return version_; }
  void add(std::string_view text);
  // Those behind them move up. Requires: there are so many.
  void remove_first(int count);
  // Does nothing when there is no such item.
  void remove(int index);
  void clear();

  // Besides the common ones: Count.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

 private:
  void changed();

  std::vector<std::string> items_;
  std::uint64_t version_ = 0;
};

}  // namespace quillvane
