#include "cleaning/browser_processes.h"

#include <string>

#include "platform/unicode_case.h"

namespace quillvane {

std::uint32_t pid(const Processes& processes, std::string_view name) {
  for (const ProcessInfo& process : processes.list()) {
    if (same_name(process.name, name)) return process.id;
  }
  return 0;
}

bool TerminateByName(Processes& processes, std::string_view name) {
  const std::string ending = lower_case(name);
  bool found = false;
  for (const ProcessInfo& process : processes.list()) {
    if (!lower_case(process.name).ends_with(ending)) continue;
    found = true;
    // One that cannot be ended is left to the second sweep.
    static_cast<void>(processes.terminate(process.id));
  }
  return found;
}

void KillProcessByName(Processes& processes, std::string_view name) {
  for (const ProcessInfo& process : processes.list()) {
    if (process.id == 0 || !same_name(process.name, name)) continue;
    static_cast<void>(processes.terminate(process.id));  // its files are then scanned as they are
  }
}

}  // namespace quillvane
