// A message loop whose time is not the world's: it passes only while the program waits, and then
// at once. What the windows show for a second costs a script or the console nothing, and a test
// owns its clock.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "platform/file_time.h"
#include "platform/message_loop.h"

namespace quillvane {

class VirtualLoop final : public MessageLoop {
 public:
  // `local_now` is what the machine's clock shows at the start.
  explicit VirtualLoop(FileTime local_now) : local_start_(local_now) {}

  // Serves the timers that are due, the earliest first, then calls the hook. Walkers call this
  // once a file, so without a due timer it is one comparison.
  void do_events() override {
    if (now_ms_ >= next_due_ms_) serve_timers();
    if (served_hook_) served_hook_();
  }

  // Time steps from one due timer to the next; when it returns, `time` and one more millisecond
  // have passed.
  void wait(std::chrono::milliseconds time) override;

  // An interval below a millisecond counts as one. A tick may start and stop timers, its own too;
  // one that serves the loop itself can be called again inside when its timer is due again.
  TimerId start_timer(std::chrono::milliseconds interval, std::function<void()> tick) override;
  void stop_timer(TimerId timer) override;

  // Lets the user act; without one it returns at once.
  void serve_until(const std::function<bool()>& done) override {
    if (user_) user_(done);
  }
  // Asks the hook; without one nobody looks on, and every reading goes on to its end.
  [[nodiscard]] bool show_reading(const TreeProgress& progress) override {
    return !reading_hook_ || reading_hook_(progress);
  }
  [[nodiscard]] FileTime local_now() const override {
    return {local_start_.ticks + now_ms_ * kTicksPerMillisecond};
  }

  // Sets the clock; timers take no notice.
  void set_local_now(FileTime local_now);

  // Lets time pass without serving anything, as a long piece of work does.
  void advance(std::chrono::milliseconds time) { now_ms_ += time.count(); }

  // Called at each serving of the loop, after the timers; servings inside the hook call it too.
  // Requires: not changed while it runs.
  void set_served_hook(std::function<void()> hook) { served_hook_ = std::move(hook); }
  // Who looks on while a tree is read, and answers whether to go on.
  void set_reading_hook(std::function<bool(const TreeProgress& progress)> hook) {
    reading_hook_ = std::move(hook);
  }
  // What stands for the user while a window waits for one. It acts until `done` holds or it has
  // nothing more to do, and may be called again inside one of its acts. Requires: not changed while
  // it runs.
  void set_user(std::function<void(const std::function<bool()>& done)> user) {
    user_ = std::move(user);
  }

 private:
  static constexpr std::int64_t kTicksPerMillisecond = 10'000;
  static constexpr std::int64_t kNever = std::numeric_limits<std::int64_t>::max();

  struct RunningTimer {
    TimerId id;
    std::int64_t interval_ms;
    std::int64_t due_ms;
    std::shared_ptr<const std::function<void()>> tick;  // shared: a tick may stop its own timer
  };

  void serve_timers();
  [[nodiscard]] RunningTimer* earliest();
  void find_next_due();

  FileTime local_start_;
  std::int64_t now_ms_ = 0;
  std::int64_t next_due_ms_ = kNever;
  std::vector<RunningTimer> timers_;
  TimerId last_id_ = 0;
  std::function<void()> served_hook_;
  std::function<bool(const TreeProgress& progress)> reading_hook_;
  std::function<void(const std::function<bool()>& done)> user_;
};

}  // namespace quillvane
