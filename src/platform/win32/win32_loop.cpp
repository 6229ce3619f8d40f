#include "platform/win32/win32_loop.h"

#include <algorithm>
#include <utility>

#include "platform/win32/windows_time.h"

namespace quillvane {

void Win32Loop::do_events() {
  if (GetTickCount64() != served_ms_) serve();
}

void Win32Loop::wait(std::chrono::milliseconds time) {
  const std::uint64_t end_ms =
      GetTickCount64() + static_cast<std::uint64_t>(std::max<std::int64_t>(time.count(), 0));
  for (;;) {
    serve();
    const std::uint64_t now_ms = GetTickCount64();
    if (now_ms > end_ms) return;
    MsgWaitForMultipleObjectsEx(0, nullptr,
                                static_cast<DWORD>(milliseconds_until_due(now_ms, end_ms + 1)),
                                QS_ALLINPUT, MWMO_INPUTAVAILABLE);
  }
}

Win32Loop::TimerId Win32Loop::start_timer(std::chrono::milliseconds interval,
                                          std::function<void()> tick) {
  const auto interval_ms = static_cast<std::uint64_t>(std::max<std::int64_t>(interval.count(), 1));
  timers_.push_back({++last_id_, interval_ms, GetTickCount64() + interval_ms,
                     std::make_shared<const std::function<void()>>(std::move(tick))});
  return last_id_;
}

void Win32Loop::stop_timer(TimerId timer) {
  std::erase_if(timers_, [timer](const RunningTimer& running) { return running.id == timer; });
}

FileTime Win32Loop::local_now() const {
  SYSTEMTIME local;
  GetLocalTime(&local);
  FILETIME time{};
  SystemTimeToFileTime(&local, &time);
  return file_time(time);
}

void Win32Loop::serve_until(const std::function<bool()>& done) {
  constexpr std::uint64_t kNoEnd = ~std::uint64_t{0};
  for (;;) {
    serve();
    if (done()) return;
    const std::uint64_t pause_ms = milliseconds_until_due(GetTickCount64(), kNoEnd);
    MsgWaitForMultipleObjectsEx(0, nullptr,
                                static_cast<DWORD>(std::min<std::uint64_t>(pause_ms, INFINITE)),
                                QS_ALLINPUT, MWMO_INPUTAVAILABLE);
  }
}

void Win32Loop::dispatch_waiting_messages() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // For the outermost loop, which ends the program; this one only serves what waits.
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    if (take_ && take_(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

void Win32Loop::serve() {
  served_ms_ = GetTickCount64();
  dispatch_waiting_messages();
  serve_timers();
}

void Win32Loop::serve_timers() {
  // Up to the moment of the call, so that a tick slower than its interval cannot keep the loop
  // here.
  const std::uint64_t now_ms = GetTickCount64();
  while (RunningTimer* timer = due_timer(now_ms)) {
    // Counted from now, so that a late tick is not made up; and set before the call, so that a
    // serving inside the tick doesn't find it due still.
    timer->due_ms = GetTickCount64() + timer->interval_ms;
    const auto tick = timer->tick;
    (*tick)();
  }
}

Win32Loop::RunningTimer* Win32Loop::due_timer(std::uint64_t now_ms) {
  const auto earliest = std::min_element(
      timers_.begin(), timers_.end(),
      [](const auto& left, const auto& right) { return left.due_ms < right.due_ms; });
  return earliest != timers_.end() && earliest->due_ms <= now_ms ? &*earliest : nullptr;
}

std::uint64_t Win32Loop::milliseconds_until_due(std::uint64_t now_ms, std::uint64_t end_ms) const {
  std::uint64_t next_ms = end_ms;
  for (const RunningTimer& timer : timers_) next_ms = std::min(next_ms, timer.due_ms);
  return next_ms > now_ms ? next_ms - now_ms : 0;
}

}  // namespace quillvane
