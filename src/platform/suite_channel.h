// The channel to the suite's main program: a short text under a well-known name, and a knock at its
// window.
#pragma once

#include <cstddef>
#include <string>

namespace quillvane {

class SuiteChannel {
 public:
  virtual ~SuiteChannel() = default;

  // Puts `text` where the suite reads it, and keeps it there until withdraw or the next text. A
  // failure goes unnoticed: the message is lost.
  virtual void publish(const std::string& text) = 0;

  // Tells the window with this title that a text of `length` bytes is there, and waits until it has
  // been read. False when there is no such window.
  [[nodiscard]] virtual bool notify(const std::string& title, std::size_t length) = 0;

  // Takes the text away.
  virtual void withdraw() = 0;
};

}  // namespace quillvane
