// What is asked of the reading of a folder tree.
#pragma once

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

namespace quillvane {

struct TreeRequest {
  // What ListedFolder tells of each file: which of the patterns it matches, of which there are at
  // most FolderTree::kMostPatterns then; or the number of the first one, of however many.
  enum class Tells { kEveryMatch, kFirstMatch };

  // Patterns alone are the usual request.
  TreeRequest(std::vector<std::string> wanted)  // NOLINT(google-explicit-constructor)
      : patterns(std::move(wanted)) {}
  TreeRequest(std::initializer_list<std::string> wanted) : patterns(wanted) {}

  std::vector<std::string> patterns;
  Tells tells = Tells::kEveryMatch;
  bool subfolders = true;  // false: the folder alone is read
};

}  // namespace quillvane
