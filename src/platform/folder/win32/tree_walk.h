// Reads a folder of a drive and everything below it, one folder after the other.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/folder/tree_patterns.h"
#include "platform/folder/win32/folder_entries.h"
#include "platform/folder/win32/host_drive.h"
#include "platform/folder_tree.h"
#include "platform/link_budget.h"
#include "platform/reading_state.h"

namespace quillvane {

class TreeWalk {
 public:
  // `denied` are the folders that cannot be listed. All must outlive this object.
  TreeWalk(const HostDrive& drive, const TreePatterns& patterns,
           const std::vector<HostIdentity>& denied, FolderTree& tree, ReadingState& state)
      : drive_(drive),
        patterns_(patterns),
        denied_(denied),
        tree_(tree),
        state_(state),
        arena_(tree.add_arena()) {}

  // Reads the tree from a folder on that is held with Access::kListed and not denied. `path_units`
  // are the UTF-16 units of its Windows path with a backslash. When `state` ends the reading, what
  // was read until then stays.
  void read(const HeldPlace& start, std::size_t path_units);

 private:
  // A folder of the walk and how it was come to.
  struct Step {
    const HeldPlace& place;
    std::size_t path_units;
    bool is_behind_link = false;  // or a link itself
    bool is_read_again = false;   // the walk has read it before, by another way
  };

  void read_folder(ListedFolder& folder, const Step& step);
  void read_subfolder(ListedFolder& folder, const Step& parent);
  [[nodiscard]] bool may_be_read(const HostIdentity& folder);

  const HostDrive& drive_;
  const TreePatterns& patterns_;
  const std::vector<HostIdentity>& denied_;
  FolderTree& tree_;
  ReadingState& state_;
  TreeArena& arena_;
  LinkBudget links_;
  std::vector<HostIdentity> way_;  // the folders that the walk is in
};

}  // namespace quillvane
