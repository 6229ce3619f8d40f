#include "platform/virtual/virtual_loop.h"

#include <algorithm>
#include <utility>

namespace quillvane {

void VirtualLoop::wait(std::chrono::milliseconds time) {
  const std::int64_t end_ms = now_ms_ + time.count();
  do {
    do_events();
    // A handler may have waited itself and moved the time on.
    now_ms_ = std::max(now_ms_, std::min(next_due_ms_, end_ms + 1));
  } while (now_ms_ <= end_ms);
}

VirtualLoop::TimerId VirtualLoop::start_timer(std::chrono::milliseconds interval,
                                              std::function<void()> tick) {
  const std::int64_t interval_ms = std::max<std::int64_t>(interval.count(), 1);
  timers_.push_back({++last_id_, interval_ms, now_ms_ + interval_ms,
                     std::make_shared<const std::function<void()>>(std::move(tick))});
  find_next_due();
  return last_id_;
}

void VirtualLoop::stop_timer(TimerId timer) {
  std::erase_if(timers_, [timer](const RunningTimer& running) { return running.id == timer; });
  find_next_due();
}

void VirtualLoop::set_local_now(FileTime local_now) {
  local_start_ = {local_now.ticks - now_ms_ * kTicksPerMillisecond};
}

void VirtualLoop::serve_timers() {
  while (now_ms_ >= next_due_ms_) {
    RunningTimer* timer = earliest();
    // Counted from now, so that a late tick is not made up; and set before the call, so that a
    // serving inside the tick doesn't find it due still.
    timer->due_ms = now_ms_ + timer->interval_ms;
    const auto tick = timer->tick;
    find_next_due();
    (*tick)();
  }
}

VirtualLoop::RunningTimer* VirtualLoop::earliest() {
  const auto timer = std::min_element(
      timers_.begin(), timers_.end(),
      [](const auto& left, const auto& right) { return left.due_ms < right.due_ms; });
  return timer == timers_.end() ? nullptr : &*timer;
}

void VirtualLoop::find_next_due() {
  const RunningTimer* timer = earliest();
  next_due_ms_ = timer == nullptr ? kNever : timer->due_ms;
}

}  // namespace quillvane
