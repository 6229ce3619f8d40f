#include "forms/tabs.h"

#include <utility>

#include "platform/unicode_case.h"

namespace quillvane {

Tabs::Tabs(Window& owner, std::string_view own_name, std::vector<std::string> captions,
           const Design& design)
    : Control(owner, own_name, design), captions_(std::move(captions)) {}

std::string Tabs::caption(int tab) const {
  return has(tab) ? captions_[static_cast<std::size_t>(tab) - 1] : std::string();
}

void Tabs::set_caption(int tab, std::string_view caption) {
  if (!has(tab)) return;
  captions_[static_cast<std::size_t>(tab) - 1] = caption;
  notify(Change::kCaption);
}

void Tabs::choose(int tab) {
  if (!has(tab) || tab == chosen_) return;
  chosen_ = tab;
  notify(Change::kValue);
}

void Tabs::click_tab(int tab) {
  if (!enabled() || !has(tab)) return;
  choose(tab);
  if (on_click) on_click(tab);
}

std::optional<PropertyValue> Tabs::property(std::string_view name) const {
  if (same_name(name, "count")) return std::int64_t{count()};
  if (same_name(name, "value")) return std::int64_t{chosen_};
  return Control::property(name);
}

}  // namespace quillvane
