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
  [[nodiscard]] bool running() const { return id_.has_value(); }

  // Enabled tells whether it runs. Besides the common ones: Interval, in milliseconds.
  [[nodiscard]] std::optional<PropertyValue> property(std::string_view name) const override;

  std::function<void()> on_timer;

 private:
  MessageLoop& loop_;
  std::chrono::milliseconds interval_;
  std::optional<MessageLoop::TimerId> id_;
};

}  // namespace quillvane
