// A part of a tree that was read, as a tree of its own.
#pragma once

#include <memory>

#include "scan/search.h"

namespace quillvane {

// What a walk of the part alone would have read: the files that match its pattern, the folders on
// the way to them, in the same order. It lives without the tree that it was taken from.
[[nodiscard]] std::shared_ptr<const FolderTree> copy_of(const ListedPart& part);

}  // namespace quillvane
