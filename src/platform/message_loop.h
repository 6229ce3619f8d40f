// The message loop of the program's one thread, its timers and its clock.
//
// Handlers run only inside do_events, wait and serve_until; they may call do_events again.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "platform/file_time.h"
#include "platform/tree_reading.h"

namespace quillvane {

class MessageLoop {
 public:
  using TimerId = int;

  virtual ~MessageLoop() = default;

  // Serves the loop once: the timers that are due and the acts of the user that are waiting.
  virtual void do_events() = 0;

  // Serves the loop until more than `time` has passed; at least once.
  virtual void wait(std::chrono::milliseconds time) = 0;

  // Serves the loop until `done` holds, asleep while nothing is due: how a window waits for the
  // user. Returns before that only where there is no user, or no more of one.
  virtual void serve_until(const std::function<bool()>& done) = 0;

  // Lets the view show how far the reading of a tree has come, and paint. Runs no handler: neither
  // the program's timers nor the user's acts are served, and no time passes for them. False: the
  // user has asked for an end; what they did for it is served with the other acts, when the loop
  // next is.
  [[nodiscard]] virtual bool show_reading(const TreeProgress& progress) = 0;

  // Calls `tick` each `interval` until stop_timer. A tick that is late is served once, not made up.
  virtual TimerId start_timer(std::chrono::milliseconds interval, std::function<void()> tick) = 0;
  virtual void stop_timer(TimerId timer) = 0;

  // Date and time of the machine, as its clock on the wall shows it (local time).
  [[nodiscard]] virtual FileTime local_now() const = 0;
};

}  // namespace quillvane
