#include "support/session.h"

#include "support/event_log.h"
#include "support/program_name.h"

namespace quillvane {

namespace {

constexpr std::string_view kProblemEvent = "5001";

}  // namespace

Session::Session(const Platform& machine)
    : platform(machine), trail(platform.event_log, kProgramName) {}

void Session::PumpWait(std::chrono::milliseconds time) {
  if (!ended_) platform.loop.wait(time);
}

void Session::warn(const std::string& what_and_why) {
  if (warnings_.insert(what_and_why).second && on_warning) on_warning(what_and_why);
}

void Session::tell_problem(std::string_view what, std::string_view why) {
  if (on_problem) {
    on_problem(what, why);
    return;
  }
  const std::string text = std::string(what) + ": " + std::string(why);
  // A log that takes no entry is no reason to stop.
  static_cast<void>(EventLog(platform.event_log)
                        .WriteEvent(text, kProgramName, kProblemEvent, EventLog::kWarning));
}

std::string Session::data_file(std::string_view name) const {
  return platform.system.program_folder() + "\\" + std::string(name);
}

}  // namespace quillvane
