#include "view/console/program_driver.h"

namespace quillvane {

void ProgramDriver::start(const std::string& command_line) {
  started_ = true;  // first: a run switch does its work in here, and the script drives that too
  program_.start(command_line);
}

void ProgramDriver::wait(std::chrono::milliseconds time) { program_.session.PumpWait(time); }

Window* ProgramDriver::find_window(std::string_view name) const {
  return program_.find_window(name);
}

bool ProgramDriver::has_window(std::string_view name) const { return Program::has_window(name); }

}  // namespace quillvane
