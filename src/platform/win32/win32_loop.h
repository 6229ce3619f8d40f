// The message loop of a program on this PC, in real time.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/message_loop.h"

namespace quillvane {

// Messages are dispatched and timers are called on the thread that serves the loop. Timers are kept
// here rather than asked of Windows: those of Windows also run inside the loops of its own message
// boxes, where the program is in the middle of something else.
class Win32Loop final : public MessageLoop {
 public:
  // Serves the loop at most once per tick of the system's clock (about 16 ms). A walker calls this
  // once a file; a look at the message queue costs more than all other work on a file, and nothing
  // becomes due within a tick.
  void do_events() override;
  void wait(std::chrono::milliseconds time) override;
  TimerId start_timer(std::chrono::milliseconds interval, std::function<void()> tick) override;
  void stop_timer(TimerId timer) override;
  // `done` is asked after each serving.
  void serve_until(const std::function<bool()>& done) override;
  // Asks the view; without one every reading goes on to its end.
  [[nodiscard]] bool show_reading(const TreeProgress& progress) override {
    return !reading_view_ || reading_view_(progress);
  }
  [[nodiscard]] FileTime local_now() const override;

  // `take` sees each message before it is dispatched; what it takes is not. For windows whose keys
  // go through their controls. An empty one takes nothing.
  void set_message_filter(std::function<bool(MSG&)> take) { take_ = std::move(take); }
  // `show` has the windows answer while a tree is read, without an act of the user being done, and
  // tells whether to go on. An empty one: there is no window.
  void set_reading_view(std::function<bool(const TreeProgress&)> show) {
    reading_view_ = std::move(show);
  }

 private:
  struct RunningTimer {
    TimerId id;
    std::uint64_t interval_ms;
    std::uint64_t due_ms;
    std::shared_ptr<const std::function<void()>> tick;  // shared: a tick may stop its own timer
  };

  void serve();
  void dispatch_waiting_messages();
  void serve_timers();
  // The timer that has been due longest; null when none is.
  [[nodiscard]] RunningTimer* due_timer(std::uint64_t now_ms);
  [[nodiscard]] std::uint64_t milliseconds_until_due(std::uint64_t now_ms,
                                                     std::uint64_t end_ms) const;

  std::vector<RunningTimer> timers_;
  std::function<bool(MSG&)> take_;
  std::function<bool(const TreeProgress&)> reading_view_;
  TimerId last_id_ = 0;
  std::uint64_t served_ms_ = 0;  // the tick of the clock in which the loop was last served
};

}  // namespace quillvane
