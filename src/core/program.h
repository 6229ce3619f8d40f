// The running program: its session and its windows.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "forms/modal_windows.h"
#include "support/session.h"

namespace quillvane {

class Form3;
class Form7;

class Program {
 public:
  // What `platform` refers to must outlive it.
  explicit Program(const Platform& platform);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Makes the main window and runs its Initialize and Load with this command line, then its
  // Activate when it is shown. Called once.
  void start(std::string_view command_line);

  [[nodiscard]] bool started() const { return form7_ != nullptr; }
  [[nodiscard]] bool ended() const { return session.ended(); }
  // Whether anybody waits for the rest of a tree that is being read: not when its scan was
  // cancelled, or the program has ended. Requires: start has begun.
  [[nodiscard]] bool awaits_reading() const;

  // The window of that name, without regard to case; null while it isn't loaded.
  [[nodiscard]] Window* find_window(std::string_view name) const;
  // Whether the program has a window of that name, be it loaded or not.
  [[nodiscard]] static bool has_window(std::string_view name);
  // The main window. Requires: start has begun.
  [[nodiscard]] Form7& main_window() const { return *form7_; }
  // The shortcut window; null while it isn't loaded.
  [[nodiscard]] Form3* shortcut_window() const { return form3_.get(); }
  // Makes the shortcut window and runs its Load, unless that has been done. Requires: start has
  // begun.
  Form3& load_shortcut_window();

  // How a view gets a window on the screen that stands beside the main one: called when it has been
  // loaded. What it returns is kept as long as the window, or until let_go_of_views.
  std::function<std::shared_ptr<void>(Window& window)> attach_view;
  void let_go_of_views();

  Session session;
  ModalWindows windows;

 private:
  std::unique_ptr<Form7> form7_;
  std::unique_ptr<Form3> form3_;
  std::shared_ptr<void> form3_view_;
};

}  // namespace quillvane
