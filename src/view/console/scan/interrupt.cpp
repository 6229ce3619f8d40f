#include "view/console/scan/interrupt.h"

#include <csignal>

namespace quillvane {

namespace {

volatile std::sig_atomic_t interrupted = 0;

// Calls nothing that a signal handler may not call.
extern "C" void note_interrupt(int /*signal*/) {
  interrupted = 1;
  std::signal(SIGINT, SIG_DFL);
}

}  // namespace

Interrupt::Interrupt() {
  interrupted = 0;
  std::signal(SIGINT, note_interrupt);
}

Interrupt::~Interrupt() { std::signal(SIGINT, SIG_DFL); }

bool Interrupt::came() const { return interrupted != 0; }

bool Interrupt::take() {
  if (!came()) return false;
  interrupted = 0;
  return true;
}

}  // namespace quillvane
