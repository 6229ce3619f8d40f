// The running program: its session and its windows.
#pragma once

#include <memory>
#include <string_view>

#include "forms/modal_windows.h"
#include "support/session.h"

namespace quillvane {

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

  // The window of that name, without regard to case; null while it isn't loaded.
  [[nodiscard]] Window* find_window(std::string_view name) const;
  // Whether the program has a window of that name, be it loaded or not.
  [[nodiscard]] static bool has_window(std::string_view name);
  // The main window. Requires: start has begun.
  [[nodiscard]] Form7& main_window() const { return *form7_; }

  Session session;
  ModalWindows windows;

 private:
  std::unique_ptr<Form7> form7_;
};

}  // namespace quillvane
