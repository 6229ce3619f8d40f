#include "support/session.h"

#include "support/program_name.h"

namespace quillvane {

Session::Session(const Platform& machine)
    : platform(machine), trail(platform.event_log, kProgramName) {}

void Session::PumpWait(std::chrono::milliseconds time) {
  if (!ended_) platform.loop.wait(time);
}

std::string Session::data_file(std::string_view name) const {
  return platform.system.program_folder() + "\\" + std::string(name);
}

}  // namespace quillvane
