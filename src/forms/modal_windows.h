// The windows that wait for the user, one before the other.
#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "forms/modal_window.h"
#include "support/session.h"

namespace quillvane {

class ModalWindows {
 public:
  // `session` must outlive it.
  explicit ModalWindows(Session& session) : session_(session) {}
  ModalWindows(const ModalWindows&) = delete;
  ModalWindows& operator=(const ModalWindows&) = delete;

  // Shows the window and serves the message loop until it is closed or the program has ended; the
  // caller goes on then. When nobody is left who could close it, the program is stopped.
  void show(ModalWindow& window);

  // The waiting window of that name, without regard to case; null when none waits.
  [[nodiscard]] ModalWindow* find(std::string_view name) const;

  // How a view gets a window on the screen: called before it is shown. What it returns is kept
  // until the window has been closed, and let go before the window is.
  std::function<std::shared_ptr<void>(Window& window)> attach_view;

 private:
  Session& session_;
  std::vector<ModalWindow*> waiting_;  // the innermost last
};

}  // namespace quillvane
