// The windows of the program that are on the screen: the main window, and before it those that wait
// for the user.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <vector>

#include "forms/window.h"
#include "platform/tree_reading.h"

namespace quillvane {

class FormWindow;

class OpenWindows {
 public:
  // `ended` tells whether the program has ended itself: its windows are gone from the screen then.
  explicit OpenWindows(std::function<bool()> ended);
  ~OpenWindows();
  OpenWindows(const OpenWindows&) = delete;
  OpenWindows& operator=(const OpenWindows&) = delete;

  // Gives a window of the program its place on the screen, by the table of its name, before the
  // ones that are open already; the last of those takes no acts of the user meanwhile. The window
  // leaves the screen when what is returned is let go: the last opened first. Null: no table is
  // there for it.
  [[nodiscard]] std::shared_ptr<void> open(Window& model);

  // The same for a window that stands beside the others: they go on taking acts.
  [[nodiscard]] std::shared_ptr<void> open_beside(Window& model);

  // Lets the windows answer while a tree is read: they paint, show the folder in work and take what
  // the user does. False: the user wants the reading ended.
  [[nodiscard]] bool show_reading(const TreeProgress& progress);

  // A message of the loop before Windows dispatches it. True: done with.
  [[nodiscard]] bool take_key(MSG& message);

 private:
  std::shared_ptr<void> open_before(Window& model, HWND owner);

  std::function<bool()> ended_;
  std::vector<std::unique_ptr<FormWindow>> windows_;  // the last opened last
};

}  // namespace quillvane
