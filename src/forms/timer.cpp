#include "forms/timer.h"

#include "platform/unicode_case.h"

namespace quillvane {

Timer::Timer(Window& window, std::string_view name, MessageLoop& loop,
             std::chrono::milliseconds interval)
    : Control(window, name), loop_(loop), interval_(interval) {}

Timer::~Timer() {
  if (id_) loop_.stop_timer(*id_);
}

void Timer::set_running(bool running) {
  if (running == running_) return;
  running_ = running;
  start_or_stop();
  notify(Change::kEnabled);
}

void Timer::set_idle(bool idle) {
  idle_ = idle;
  start_or_stop();
}

void Timer::start_or_stop() {
  const bool ticks = running_ && !idle_;
  if (ticks == id_.has_value()) return;
  if (ticks) {
    id_ = loop_.start_timer(interval_, [this] {
      if (on_timer) on_timer();
    });
  } else {
    loop_.stop_timer(*id_);
    id_.reset();
  }
}

std::optional<PropertyValue> Timer::property(std::string_view name) const {
  if (same_name(name, "enabled")) return running();
  if (same_name(name, "interval")) return static_cast<std::int64_t>(interval_.count());
  return Control::property(name);
}

}  // namespace quillvane
