#include "scan/reading_watch.h"

#include <utility>

namespace quillvane {

bool ReadingWatch::go_on(const TreeProgress& progress) {
  if (!program_.platform.loop.show_reading(progress)) was_ended_ = true;
  return !was_ended_;
}

void ReadingWatch::settle(const std::string& path, const FolderTree* tree) {
  if (tree != nullptr && tree->left_out_links()) {
    program_.warn(path + ": links lead to the same folders again and again; some were passed over");
  }
  if (std::exchange(was_ended_, false)) program_.do_events();
}

}  // namespace quillvane
