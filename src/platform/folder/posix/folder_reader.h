// Reads one folder of a walk: its files with sizes and times, and its subfolders by name.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/folder/posix/directory_listing.h"
#include "platform/folder/posix/folder_in_work.h"
#include "platform/folder/posix/tree_scope.h"
#include "platform/folder_tree.h"
#include "platform/reading_state.h"

namespace quillvane {

// Each reading thread has one of its own.
class FolderReader {
 public:
  // All must outlive it.
  FolderReader(const TreeScope& scope, TreeArena& arena, ReadingState& state)
      : scope_(scope), arena_(arena), state_(state) {}

  // Gives the folder its files and its subfolders, the latter without contents. Returns the number
  // of subfolders. When `state` ends the reading, the folder has the files that were looked at
  // until then.
  std::size_t read(const FolderInWork& work);

  // How many names the folder that was read last has, be they matched or not.
  [[nodiscard]] std::size_t names_read() const { return names_read_; }

 private:
  std::size_t add_subfolders(ListedFolder& folder);
  void add_files(const FolderInWork& work);
  [[nodiscard]] bool read_file_status(const FolderInWork& work,
                                      const DirectoryListing::Entry& entry, HostStatus& status,
                                      FileTime& created) const;
  void add_names(ListedFolder& folder, char* names);

  const TreeScope& scope_;
  TreeArena& arena_;
  ReadingState& state_;
  DirectoryListing listing_;
  std::size_t names_read_ = 0;
};

}  // namespace quillvane
