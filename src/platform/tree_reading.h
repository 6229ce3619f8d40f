// Watching the reading of a folder tree, which can take minutes.
#pragma once

#include <cstdint>
#include <string_view>

namespace quillvane {

struct TreeProgress {
  std::string_view folder;  // the one in work, a path without a backslash at its end
  std::uint64_t files = 0;  // read so far; those that match no pattern do not count
};

// Who wants to know how far a reading has come, and may end it.
class TreeReading {
 public:
  virtual ~TreeReading() = default;

  // Called on the thread that asked for the tree: once before anything is read, then some twenty
  // times a second, however long one answer of the disk takes. False ends the reading; it may be
  // called a few times more until the reading has ended.
  [[nodiscard]] virtual bool go_on(const TreeProgress& progress) = 0;
};

}  // namespace quillvane
