// Controls with little behaviour of their own: they hold what a view draws.
#pragma once

#include <string>

#include "forms/control.h"

namespace quillvane {

// A page or panel that holds other controls.
class Frame : public Control {
 public:
  using Control::Control;
};

// A mark of colour; its colour is the BackColor.
class Shape : public Control {
 public:
  using Control::Control;
};

// A moving picture, played while it is visible.
class Animation : public Control {
 public:
  using Control::Control;

  [[nodiscard]] const std::string& file() const { return file_; }
  void set_file(std::string_view file) {
    file_ = file;
    notify(Change::kText);
  }

 private:
  std::string file_;
};

}  // namespace quillvane
