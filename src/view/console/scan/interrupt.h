// Ctrl-C as a request to the command that runs.
#pragma once

#include <functional>
#include <stop_token>
#include <thread>

namespace quillvane {

// While one of these lives, the first Ctrl-C is only noted; a second one ends the program. At most
// one at a time.
class Interrupt {
 public:
  Interrupt();
  ~Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;

  // Whether Ctrl-C came since this was made.
  [[nodiscard]] static bool came();
};

// While one of these lives, a second Ctrl-C ends the program only when `last_act` has been done: on
// a thread of its own, beside the work in hand, which may hang. A third one does not wait for it.
// Where no thread is to be had, the second ends the program at once. Requires: an Interrupt lives.
class LastAct {
 public:
  explicit LastAct(std::function<void()> last_act);
  ~LastAct();
  LastAct(const LastAct&) = delete;
  LastAct& operator=(const LastAct&) = delete;

 private:
  std::jthread watcher_;
};

}  // namespace quillvane
