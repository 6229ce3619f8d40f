// The console program: the words of its command line, and what they do.
#pragma once

#include <string>
#include <vector>

#include "view/console/console_io.h"
#include "view/console/machine_host.h"

namespace quillvane {

// Exit statuses.
inline constexpr int kDone = 0;
inline constexpr int kNotDone = 1;     // the job could not be done
inline constexpr int kWrongWords = 2;  // the words of the command line are off

// Runs one command line, the program's own name left out, and answers the exit status. Problems
// are told on `io.err`, one line each.
[[nodiscard]] int run_console(const std::vector<std::string>& words, ConsoleIo& io,
                              MachineHost& host);

}  // namespace quillvane
