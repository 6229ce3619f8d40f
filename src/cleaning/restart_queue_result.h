// What became of the files that a cleaning run wanted Windows to remove at the next restart.
#pragma once

#include <string>

namespace quillvane {

struct RestartQueueResult {
  int queued = 0;              // rows that were to go at the next restart
  bool queue_written = false;  // whether Windows was asked for that: only then they are queued
  std::string queue_problem;   // why not; empty where the run was not to write a queue
};

}  // namespace quillvane
