// A folder of a walk that is open on the host.
#pragma once

#include <cstddef>

#include "platform/folder/posix/descriptor.h"
#include "platform/folder/posix/tree_route.h"
#include "platform/folder_tree.h"

namespace quillvane {

struct FolderInWork {
  ListedFolder* folder = nullptr;
  Descriptor descriptor;             // not open: there is nothing to read
  const TreeRoute* route = nullptr;  // how the walk came here
  std::size_t path_units = 0;        // UTF-16 units of its Windows path and the backslash behind it
  bool is_read_again = false;        // the walk has read it before, by another way
};

}  // namespace quillvane
