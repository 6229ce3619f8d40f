// The folders that one thread of a walk has read and whose subfolders are still to be read. The
// thread itself goes on at the newest, so that few folders are open at a time; a thread without
// work takes from the oldest, which is likely to have most below it.
#pragma once

#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "platform/folder/posix/folder_in_work.h"

namespace quillvane {

class OpenFolders {
 public:
  void add(FolderInWork folder) {
    const std::lock_guard lock(changing_);
    ListedFolder* next = folder.folder->first_subfolder();
    levels_.push_back({std::move(folder), next});
  }

  // Both take one subfolder. `enter(folder, subfolder)` gives it back ready to be read; the folder
  // stays open for so long. Nothing when no subfolder is left.
  template <typename Enter>
  std::optional<FolderInWork> take_newest(Enter enter) {
    const std::lock_guard lock(changing_);
    while (!levels_.empty() && levels_.back().next == nullptr) levels_.pop_back();
    if (levels_.empty()) return std::nullopt;
    return take(levels_.back(), enter);
  }
  template <typename Enter>
  std::optional<FolderInWork> take_oldest(Enter enter) {
    const std::lock_guard lock(changing_);
    for (Level& level : levels_) {
      if (level.next != nullptr) return take(level, enter);
    }
    return std::nullopt;
  }

 private:
  struct Level {
    FolderInWork folder;
    ListedFolder* next;  // the next subfolder to be taken
  };

  template <typename Enter>
  static FolderInWork take(Level& level, Enter enter) {
    ListedFolder& subfolder = *level.next;
    level.next = subfolder.next_sibling();
    return enter(level.folder, subfolder);
  }

  std::mutex changing_;
  std::vector<Level> levels_;
};

}  // namespace quillvane
