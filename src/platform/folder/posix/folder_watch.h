// Changes of folders, as the kernel tells them.
//
// The kernel notes a change before the call that made it returns, whoever made it. So what was
// read from a watched folder is still so when nothing was noted since. That holds for file systems
// that only this kernel changes; those of a network, or of a program, change without its knowledge
// and cannot be watched.
#pragma once

#include <functional>
#include <string_view>

#include "platform/folder/posix/descriptor.h"

namespace quillvane {

// One change of a watched folder.
struct FolderChange {
  enum class Kind {
    kNewName,  // a file or folder was made, linked or moved there
    kMoved,    // the folder itself has another name, is gone, or is no longer watched
    kUnknown,  // changes were lost: anything may have happened to any of the folders
  };
  Kind kind = Kind::kUnknown;
  int watch = -1;         // which folder; not of kUnknown
  std::string_view name;  // of kNewName
};

class FolderWatch {
 public:
  // Begins to watch an open folder, however it was opened. A number for it, the same for the same
  // folder; below 0 when it cannot be watched.
  [[nodiscard]] int watch(int folder);

  // Hands over all changes since the last call. False when they cannot be had.
  [[nodiscard]] bool take(const std::function<void(const FolderChange&)>& change);

  // Ends all watches. Numbers are given anew.
  void end() { notes_ = {}; }

 private:
  Descriptor notes_;  // opened with the first folder
};

}  // namespace quillvane
