// The program with its windows on the screen, from its start to its end.
#pragma once

#include <string>

#include "core/program.h"

namespace quillvane {

class Win32Loop;

// Starts the program with this command line and serves its windows until it ends itself. False when
// this version cannot do what a run switch asks for; a user who would have seen it has been told.
[[nodiscard]] bool run_program(Program& program, Win32Loop& loop, const std::string& command_line);

}  // namespace quillvane
