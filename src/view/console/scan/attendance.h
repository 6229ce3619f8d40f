// Somebody at the terminal while the windows work: Ctrl-C cancels, and a line shows what is being
// looked at.
#pragma once

#include <functional>

#include "core/program.h"
#include "platform/virtual/virtual_loop.h"
#include "view/console/console_io.h"
#include "view/console/scan/interrupt.h"

namespace quillvane {

// Stands for one command from its scan to its end, so that a Ctrl-C in between is not lost. The
// first one cancels the scan in progress, is a No to questions, and ends a cleaning behind the row
// in hand; a second one ends the process.
class Attendance {
 public:
  // What the windows work at: the junk scan and what follows it, or the search of drives.
  enum class Work { kScan, kSearch };

  // All of these must outlive it.
  Attendance(ConsoleIo& io, VirtualLoop& loop, Program& program, Work work = Work::kScan);
  ~Attendance();
  Attendance(const Attendance&) = delete;
  Attendance& operator=(const Attendance&) = delete;

  // Called once, when the main window is there; before anything was removed.
  std::function<void(Form7& form)> on_window;

  // Runs `act` with the program's message loop attended.
  void run(const std::function<void()>& act);

  // Whether Ctrl-C came so far.
  [[nodiscard]] static bool cancelled() { return Interrupt::came(); }

 private:
  void serve();
  void cancel(Form7& form) const;

  ConsoleIo& io_;
  VirtualLoop& loop_;
  Program& program_;
  const Work work_;
  Interrupt interrupt_;
};

}  // namespace quillvane
