#include "forms/list_box.h"

#include "platform/unicode_case.h"

namespace quillvane {

std::string ListBox::item(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : std::string();
}

void ListBox::add(std::string_view text) {
  items_.emplace_back(text);
  changed();
}

void ListBox::remove_first(int count) {
  items_.erase(items_.begin(), items_.begin() + count);
  notify(Change::kItems);
}

void ListBox::remove(int index) {
  if (index < 0 || index >= count()) return;
  items_.erase(items_.begin() + index);
  changed();
}

void ListBox::clear() {
  items_.clear();
  changed();
}

void ListBox::changed() {
  ++version_;
  notify(Change::kItems);
}

std::optional<PropertyValue> ListBox::property(std::string_view name) const {
  if (same_name(name, "count")) return std::int64_t{count()};
  return Control::property(name);
}

}  // namespace quillvane
