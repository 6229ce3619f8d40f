// The shortcut window at work for the console, with somebody at the terminal: Ctrl-C cancels, and a
// line shows what is being looked at.
#pragma once

#include <functional>

#include "core/program.h"
#include "shortcuts/form3.h"
#include "view/console/console_command.h"
#include "view/console/console_dialogs.h"
#include "view/console/console_machine.h"
#include "view/console/scan/interrupt.h"
#include "view/console/shortcuts/link_list.h"

namespace quillvane {

// Stands for one command from its scan to its end, so that a Ctrl-C in between is not lost. The
// first one ends the scan in progress, is a No to questions, and ends a removal behind the link in
// hand; a second one ends the process.
class AttendedLinks {
 public:
  // Both must outlive it.
  AttendedLinks(const ConsoleSession& session, ConsoleMachine& machine);
  ~AttendedLinks();
  AttendedLinks(const AttendedLinks&) = delete;
  AttendedLinks& operator=(const AttendedLinks&) = delete;

  // Makes the window. Runs `switches` as the suite would.
  void start(const std::string& switches);
  // Runs `act` with the program's message loop attended.
  void run(const std::function<void()>& act);

  // Whether Ctrl-C came so far.
  [[nodiscard]] static bool cancelled() { return Interrupt::came(); }
  // Requires: start was called.
  [[nodiscard]] Form3& form() { return *program.shortcut_window(); }

  ConsoleDialogs dialogs;
  Platform platform;
  Program program;
  LinkList links;

 private:
  void serve();
  [[nodiscard]] std::string progress(std::string_view place) const;

  ConsoleIo& io_;
  VirtualLoop& loop_;
  Interrupt interrupt_;
};

}  // namespace quillvane
