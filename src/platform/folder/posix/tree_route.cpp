#include "platform/folder/posix/tree_route.h"

#include <algorithm>
#include <string_view>

namespace quillvane {

std::string TreeRoute::path_of(const ListedFolder& folder) const {
  std::vector<std::string_view> names;
  for (const ListedFolder* at = &folder; at != top_; at = at->parent()) names.push_back(at->name());
  std::string path = path_;
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    if (!path.empty()) path += '/';
    path += *name;
  }
  return path;
}

std::vector<HostIdentity> TreeRoute::way_to(int descriptor, const ListedFolder& folder) const {
  std::vector<HostIdentity> way = around_;
  std::string up = ".";
  for (const ListedFolder* at = &folder; at != nullptr; at = at->parent()) {
    HostStatus status;
    if (read_status(descriptor, up.c_str(), status)) way.push_back(HostIdentity::of(status));
    if (at == top_) break;
    up += "/..";
  }
  return way;
}

bool TreeRoute::was_entered(const HostIdentity& folder) const {
  return std::find(around_.begin(), around_.end(), folder) != around_.end();
}

}  // namespace quillvane
