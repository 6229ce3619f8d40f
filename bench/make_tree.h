// A folder tree to measure walks on, the same for the same seed.
//
// About ten files a folder, folders to a depth of 12, file names of 8 to 60 characters, sizes
// that take no room on the disk. All paths stay below the 260 characters of Windows.
#pragma once

#include <cstdint>
#include <string>

namespace quillvane::bench {

enum class TreeShape {
  kTree,     // as told above
  kFlat,     // all files in one folder
  kFolders,  // each file in a subfolder of its own, all of them in one folder
  kDeep,     // the files spread over 100 folders, each in the one before
};

struct TreePlan {
  std::string folder;  // host path; made when missing
  std::uint32_t files = 0;
  std::uint32_t seed = 1;
  TreeShape shape = TreeShape::kTree;
};

// Makes the tree unless it is there already, complete. Anything half made or of another size is
// refused: file systems create slowly after a big deletion, so trees are not replaced here.
// False, with a line on standard error, when the tree cannot be had.
[[nodiscard]] bool make_tree(const TreePlan& plan);

}  // namespace quillvane::bench
