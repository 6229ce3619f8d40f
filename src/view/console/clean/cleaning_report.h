// How a command that cleans ended, for people, for programs and as an exit status.
#pragma once

#include <ostream>

#include "view/console/clean/cleaning_watch.h"
#include "view/console/console_io.h"

namespace quillvane {

enum class Outcome {
  kDone,
  kDeclined,   // the answer to the question was No
  kCancelled,  // Ctrl-C came before the last row was reached
  kFailed,     // a file is still there and does not go at the restart either, or nothing was begun
};

// How a run that was begun, or had nothing to do, ended. `cancelled`: Ctrl-C came at some time.
[[nodiscard]] Outcome outcome_of_run(const CleaningResult& result, bool cancelled);

// "done", "declined", "cancelled" or "failed".
[[nodiscard]] const char* outcome_word(Outcome outcome);

// kDone for "done" and "declined".
[[nodiscard]] int exit_status(Outcome outcome);

// What is still there, each file with the reason, and in the last line how many were removed,
// queued and failed.
void print_cleaning(const ConsoleIo& io, const CleaningResult& result);

// The members "cleaned", "left" and "outcome" of an open document with members before them.
void print_cleaning_json(std::ostream& out, const CleaningResult& result, Outcome outcome);

// One line on standard error when the outcome is a problem: "quillvane: WHAT: WHY".
void tell_outcome(const ConsoleIo& io, const char* command, const CleaningResult& result,
                  Outcome outcome);

}  // namespace quillvane
