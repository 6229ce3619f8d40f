// What a cleaning run says of itself when it is over.
#pragma once

#include <string>

namespace quillvane {

struct CleaningResult {
  int queued = 0;              // rows that were to go at the next restart
  bool queue_written = false;  // whether Windows was asked for that: only then they are queued
  std::string queue_problem;   // why not; empty where the run was not to write a queue
};

}  // namespace quillvane
