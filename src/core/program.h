// The running program: its machine, its windows and the few flags that all windows share.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "forms/modal_window.h"
#include "forms/window.h"
#include "platform/platform.h"
#include "support/error_trail.h"
#include "support/program_name.h"

namespace quillvane {

class Form7;

class Program {
 public:
  explicit Program(const Platform& platform);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // Makes the main window and runs its Initialize and Load with this command line, then its
  // Activate when it is shown. Called once.
  void start(std::string_view command_line);

  // Asks the program to end: the handlers in progress run to their end, and no event is served any
  // more.
  void end() { ended_ = true; }
  [[nodiscard]] bool ended() const { return ended_; }
  // Ends the program at once: handlers in progress return where they next look at stopped().
  void stop() {
    stopped_ = true;
    ended_ = true;
  }
  [[nodiscard]] bool stopped() const { return stopped_; }

  // From here on nothing is removed any more. A cleaning in progress looks at this behind each row
  // and ends there: what it queued is written without the message, the thumbnail policy is set
  // back, and no scan, question or box follows. The rows not yet handled stay in view1; totals and
  // tree stay as the scan left them, the statistics count nothing of such a run, and the URL cache
  // keeps its entries. A cleaning that has not begun does not begin. A program that has ended, be
  // it by its close button, does the same.
  void end_cleaning() { cleaning_ended_ = true; }
  [[nodiscard]] bool cleaning_ended() const { return cleaning_ended_ || ended_; }

  // Tells what a user should know of a scan, "WHAT: WHY", though no window shows it; each text
  // once. The windows pass it over.
  void warn(const std::string& what_and_why);
  std::function<void(const std::string& what_and_why)> on_warning;

  // Lets the message loop run once.
  void do_events() {
    if (!ended_) platform.loop.do_events();
  }
  // Waits while the message loop runs.
  void PumpWait(std::chrono::milliseconds time);

  // Shows the window and serves the message loop until it is closed or the program has ended; the
  // caller goes on then. When nobody is left who could close it, the program is stopped.
  void show_modal(ModalWindow& window);

  // The window of that name, without regard to case; null while it isn't loaded.
  [[nodiscard]] Window* find_window(std::string_view name) const;
  // Whether the program has a window of that name, be it loaded or not.
  [[nodiscard]] static bool has_window(std::string_view name);
  [[nodiscard]] bool started() const { return form7_ != nullptr; }
  // The main window. Requires: start has begun.
  [[nodiscard]] Form7& main_window() const { return *form7_; }

  // Tells of something that the program could not do and that nobody is asked about: `what`, and
  // why. To on_problem where a view has set it, otherwise to the system's log.
  void tell_problem(std::string_view what, std::string_view why);
  std::function<void(std::string_view what, std::string_view why)> on_problem;

  // A file in the program's folder: "C:\...\junst.txt" for "junst.txt".
  [[nodiscard]] std::string data_file(std::string_view name) const;

  Platform platform;
  ErrorTrail trail;

  bool CommandLineGiven = false;  // the trimmed command line is not empty
  bool Is64Bit = false;           // a 32-bit program on a 64-bit system
  int HiddenRun = 0;              // 1 after the switches "g" and "s"
  int page_value = 0;             // page that the suite's windows go by; 7 for the about window

  // How a view gets a modal window on the screen: called before it is shown. What it returns is
  // kept until the window has been closed, and let go before the window is.
  std::function<std::shared_ptr<void>(Window& window)> attach_view;

 private:
  std::unique_ptr<Form7> form7_;
  std::vector<ModalWindow*> modal_windows_;  // those that wait, the innermost last
  std::set<std::string> warnings_;           // told already
  bool ended_ = false;
  bool stopped_ = false;
  bool cleaning_ended_ = false;
};

}  // namespace quillvane
