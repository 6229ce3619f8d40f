// The program as a script drives it.
#pragma once

#include <chrono>
#include <string>
#include <string_view>

#include "forms/window.h"

namespace quillvane {

class DrivenProgram {
 public:
  virtual ~DrivenProgram() = default;

  // Makes the windows and runs their start with this command line. Called at most once.
  virtual void start(const std::string& command_line) = 0;
  [[nodiscard]] virtual bool started() const = 0;
  // Whether the program has ended itself.
  [[nodiscard]] virtual bool ended() const = 0;

  // Lets time pass in the message loop, before the start too.
  virtual void wait(std::chrono::milliseconds time) = 0;

  // Null when there is no such window (yet). Case does not matter.
  [[nodiscard]] virtual Window* find_window(std::string_view name) const = 0;
  // Whether the program has a window of that name, be it loaded or not.
  [[nodiscard]] virtual bool has_window(std::string_view name) const = 0;
};

}  // namespace quillvane
