// What all windows of the running program share: its machine, its error trail, what its command
// line asked for, and its end.
#pragma once

#include <chrono>
#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "support/error_trail.h"

namespace quillvane {

class Session {
 public:
  explicit Session(const Platform& platform);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

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

  // Tells of something that the program could not do and that nobody is asked about: `what`, and
  // why. To on_problem where a view has set it, otherwise to the system's log.
  void tell_problem(std::string_view what, std::string_view why);
  std::function<void(std::string_view what, std::string_view why)> on_problem;

  // Lets the message loop run once.
  void do_events() {
    if (!ended_) platform.loop.do_events();
  }
  // Waits while the message loop runs.
  void PumpWait(std::chrono::milliseconds time);

  // A file in the program's folder: "C:\...\junst.txt" for "junst.txt".
  [[nodiscard]] std::string data_file(std::string_view name) const;

  Platform platform;
  ErrorTrail trail;

  // --- What the command line asked for.
  std::string cmdline;            // trimmed, in lower case
  bool CommandLineGiven = false;  // the trimmed command line is not empty
  int HiddenRun = 0;              // 1 after the switches "g" and "s"
  int silentmode = 0;             // 0 with a user; 1 run switches; 2 switch "g"
  int cleanmode = 0;              // second half of a run switch: 1 after "c", 2 after "c2", "c3"
  int suitemode = 0;              // the suite's quick run: 1 after "w4", 2 after "w4-c4"
  int forceclean = 0;             // 1 after "c3"
  bool known_second_half = true;  // false after a second half that is none: it never cleans
  bool shown_at_start = true;     // a run switch keeps the main window hidden

  // --- The chosen language, as it was last read.
  int langcode = 0;      // character set of its fonts, as Windows numbers them
  std::string lang;      // its code: a part of its file's name
  int langindex = 0;     // of its label in the language panel
  std::string langfile;  // "fernwick-de.lang"
  int langpage = 0;      // code page of its texts; 0: the system's

  bool Is64Bit = false;  // a 32-bit program on a 64-bit system
  int page_value = 0;    // page that the suite's windows go by; 7 for the about window

 private:
  std::set<std::string> warnings_;  // told already
  bool ended_ = false;
  bool stopped_ = false;
  bool cleaning_ended_ = false;
};

}  // namespace quillvane
