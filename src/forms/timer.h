// A timer of a window. It ticks in the message loop while it is enabled.
#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "forms/control.h"
#include "platform/message_loop.h"

namespace quillvane {

class Timer : public Control {
 public:
  Timer(Window& window, std::string_view name, MessageLoop& loop,
        std::chrono::milliseconds interval);
  ~Timer() override;

  // Starts or stops the ticks; a timer begins stopped.
  void set_running(bool running);
  [[nodiscard]] bool running() const { return running_; }
  // An idle timer runs and has nothing to do: the loop is not asked for its ticks. The first one
  // comes an interval after its time of idleness.
  void set_idle(bool idle);

  // Enabled tells whether it runs. Besides the common ones: Interval, in milliseconds.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void()> on_timer;

 private:
  void start_or_stop();

  MessageLoop& loop_;
  std::chrono::milliseconds interval_;
  bool running_ = false;
  bool idle_ = false;
  std::optional<MessageLoop::TimerId> id_;  // while it ticks
};

}  // namespace quillvane
