// A window that keeps the others waiting until it is closed.
#pragma once

#include "forms/window.h"

namespace quillvane {

class ModalWindow : public Window {
 public:
  using Window::Window;

  // Takes the window away; whoever shows it goes on.
  void unload() {
    unloaded_ = true;
    hide();
  }
  [[nodiscard]] bool unloaded() const { return unloaded_; }

  // The user's close.
  void close() override { unload(); }

 private:
  bool unloaded_ = false;
};

}  // namespace quillvane
