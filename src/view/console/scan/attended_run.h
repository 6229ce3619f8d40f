// A run of the windows with somebody at the terminal: Ctrl-C cancels, and a line shows what is
// being looked at.
#pragma once

#include <functional>

#include "core/program.h"
#include "platform/virtual/virtual_loop.h"
#include "view/console/console_io.h"

namespace quillvane {

// Runs `act` with the program's message loop attended: the first Ctrl-C presses the cancel button,
// a second one ends this process.
void run_attended(ConsoleIo& io, VirtualLoop& loop, Program& program,
                  const std::function<void()>& act);

}  // namespace quillvane
