// What one walk is about: the same for all its folders and threads.
#pragma once

#include <algorithm>
#include <utility>
#include <vector>

#include "platform/folder/posix/drive_folder.h"
#include "platform/folder/tree_patterns.h"

namespace quillvane {

struct TreeScope : TreePatterns {
  TreeScope(const DriveFolder& drive_folder, const TreeRequest& request,
            std::vector<HostIdentity> denied_folders)
      : TreePatterns(request), drive(drive_folder), denied(std::move(denied_folders)) {}

  [[nodiscard]] bool is_denied(const HostIdentity& folder) const {
    return std::find(denied.begin(), denied.end(), folder) != denied.end();
  }

  const DriveFolder& drive;
  std::vector<HostIdentity> denied;  // folders that cannot be listed
};

}  // namespace quillvane
