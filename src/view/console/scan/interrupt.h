// Ctrl-C as a request to cancel.
#pragma once

namespace quillvane {

// While one of these lives, the first Ctrl-C is only noted; a second one ends the program as usual.
// At most one at a time.
class Interrupt {
 public:
  Interrupt();
  ~Interrupt();
  Interrupt(const Interrupt&) = delete;
  Interrupt& operator=(const Interrupt&) = delete;

  // Whether Ctrl-C came since it was taken last.
  [[nodiscard]] bool came() const;
  // The same; the next one counts anew.
  [[nodiscard]] bool take();
};

}  // namespace quillvane
