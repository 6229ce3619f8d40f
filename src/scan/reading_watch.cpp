#include "scan/reading_watch.h"

#include <utility>

namespace quillvane {

bool ReadingWatch::go_on(const TreeProgress& progress) {
  if (!program_.platform.loop.show_reading(progress)) was_ended_ = true;
  return !was_ended_;
}

void ReadingWatch::settle() {
  if (std::exchange(was_ended_, false)) program_.do_events();
}

}  // namespace quillvane
