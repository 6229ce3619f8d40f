// A strip of tabs, of which one is chosen.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/control.h"

namespace quillvane {

class Tabs : public Control {
 public:
  Tabs(Window& window, std::string_view name, std::vector<std::string> captions,
       const Design& design = {});

  [[nodiscard]] int count() const { return static_cast<int>(captions_.size()); }
  // Tabs count from 1; empty when there is no such tab.
  [[nodiscard]] std::string caption(int tab) const;
  void set_caption(int tab, std::string_view caption);

  // 1 at design time.
  [[nodiscard]] int chosen() const { return chosen_; }
  // Without a click. Does nothing when there is no such tab.
  void choose(int tab);

  // The user's click, also on the chosen tab: chooses it and runs on_click. Does nothing while the
  // strip is disabled or the tab is missing.
  void click_tab(int tab);

  // Besides the common ones: Count, and Value, the number of the chosen tab.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void(int tab)> on_click;

 private:
  [[nodiscard]] bool has(int tab) const { return tab >= 1 && tab <= count(); }

  std::vector<std::string> captions_;
  int chosen_ = 1;
};

}  // namespace quillvane
