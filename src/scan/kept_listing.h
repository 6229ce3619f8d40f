// The listing of a folder tree, read once and searched by several patterns: what the rows of one
// category share, so that the disk is not read once for each of them.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "scan/search.h"

namespace quillvane {

class Form7;

// Lives no longer than the category routine that makes it: the rows it leads to do not need it.
class KeptListing {
 public:
  // The tree below `root` is read when it is first needed. Requires: at most
  // FolderTree::kMostPatterns patterns.
  KeptListing(Form7& form, std::string root, std::vector<std::string> patterns);

  // As Form7::srch, with the same rows in the same order; from the listing where it can answer.
  void srch(const std::string& path, const std::string& pattern, int category);

  // The part of the listing that a walk of `path` would read; nothing when that needs the disk: for
  // another pattern, a place outside, or names that only the disk can resolve.
  [[nodiscard]] std::optional<ListedPart> find(const std::string& path, const std::string& pattern);

 private:
  void read();
  // The subfolder of that name; null when it is not listed. `reached` is the folder's path and
  // becomes the subfolder's.
  [[nodiscard]] const ListedFolder* enter(const ListedFolder& folder, const std::string& name,
                                          std::string& reached) const;

  Form7& form_;
  std::string root_;
  std::vector<std::string> patterns_;
  bool read_ = false;
  std::shared_ptr<const FolderTree> tree_;
};

}  // namespace quillvane
