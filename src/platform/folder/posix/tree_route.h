// How a walk has come to a folder: along folders that lie in each other, or by a link.
//
// A walk begins with one route and makes one more for each link that it enters. With them it knows
// where on the host a folder lies, and whether a link leads back to a folder that it lies in.
#pragma once

#include <string>
#include <vector>

#include "platform/folder/posix/host_status.h"
#include "platform/folder_tree.h"

namespace quillvane {

class TreeRoute {
 public:
  // The route of a walk that begins at `top`, found at `path` (HostPlace::path).
  TreeRoute(std::string path, const ListedFolder& top) : path_(std::move(path)), top_(&top) {}

  // The route beyond a link, entered as `top`, which leads to `path`; `around` are the folders
  // that it lies in.
  TreeRoute(std::string path, const ListedFolder& top, std::vector<HostIdentity> around)
      : path_(std::move(path)), top_(&top), around_(std::move(around)) {}

  // Where a folder of this route lies, as HostPlace::path.
  [[nodiscard]] std::string path_of(const ListedFolder& folder) const;

  // A folder of this route and all folders of the walk that it lies in. `descriptor` is the folder.
  [[nodiscard]] std::vector<HostIdentity> way_to(int descriptor, const ListedFolder& folder) const;

  // Whether the walk was in this folder before it took the route's link.
  [[nodiscard]] bool was_entered(const HostIdentity& folder) const;
  [[nodiscard]] bool is_behind_link() const { return !around_.empty(); }

 private:
  std::string path_;
  const ListedFolder* top_;
  std::vector<HostIdentity> around_;
};

}  // namespace quillvane
