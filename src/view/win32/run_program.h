// The program with its windows on the screen, from its start to its end.
#pragma once

#include <string>

#include "core/program.h"

namespace quillvane {

class Win32Loop;

// Starts the program with this command line and serves its windows until it ends itself.
void run_program(Program& program, Win32Loop& loop, const std::string& command_line);

}  // namespace quillvane
