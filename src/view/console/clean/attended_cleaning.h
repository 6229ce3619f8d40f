// A command that may clean, with everybody who looks on.
#pragma once

#include "core/program.h"
#include "view/console/clean/cleaning_watch.h"
#include "view/console/console_dialogs.h"
#include "view/console/console_machine.h"
#include "view/console/scan/attendance.h"

namespace quillvane {

class AttendedCleaning {
 public:
  // Both must outlive it.
  AttendedCleaning(ConsoleIo& io, ConsoleMachine& machine);

  ConsoleDialogs dialogs;
  CleaningWatch watch;
  Program program;
  Attendance attendance;

 private:
  LastAct put_back_;  // a second Ctrl-C leaves no policy of ours behind
};

}  // namespace quillvane
