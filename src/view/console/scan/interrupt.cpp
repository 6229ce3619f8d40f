#include "view/console/scan/interrupt.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <csignal>
#include <mutex>
#include <system_error>
#include <utility>

namespace quillvane {

namespace {

// What a signal handler may touch, and a thread may see.
static_assert(std::atomic<int>::is_always_lock_free);
std::atomic<int> presses = 0;
std::atomic<int> noted_presses = 1;  // how many of them do not end the program

constexpr std::chrono::milliseconds kBetweenLooks{50};

// Calls nothing that a signal handler may not call. Some systems forget the handler when it is
// called, others don't; so it is named anew each time.
extern "C" void note_press(int /*signal*/) {
  const int pressed = presses.fetch_add(1) + 1;
  std::signal(SIGINT, pressed < noted_presses.load() ? note_press : SIG_DFL);
}

void end_program() {
  std::signal(SIGINT, SIG_DFL);
  std::raise(SIGINT);
}

// Looks for the second press until it is told to stop.
void watch(const std::stop_token& stop, const std::function<void()>& last_act) {
  std::mutex mutex;
  std::condition_variable_any stopped;
  std::unique_lock lock(mutex);
  while (presses.load() < 2) {
    stopped.wait_for(lock, stop, kBetweenLooks, [] { return false; });
    if (stop.stop_requested()) return;
  }
  last_act();
  end_program();
}

}  // namespace

Interrupt::Interrupt() {
  presses = 0;
  noted_presses = 1;
  std::signal(SIGINT, note_press);
}

Interrupt::~Interrupt() { std::signal(SIGINT, SIG_DFL); }

bool Interrupt::came() { return presses.load() > 0; }

LastAct::LastAct(std::function<void()> last_act) {
  try {
    watcher_ = std::jthread(
        [act = std::move(last_act)](const std::stop_token& stop) { watch(stop, act); });
  } catch (const std::system_error&) {
    return;
  }
  noted_presses = 2;
  if (presses.load() < 2) std::signal(SIGINT, note_press);
}

LastAct::~LastAct() {
  noted_presses = 1;
  if (presses.load() > 0) std::signal(SIGINT, SIG_DFL);
}

}  // namespace quillvane
