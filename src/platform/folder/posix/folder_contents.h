// Removing all that lies in a folder of a drive.
#pragma once

#include <functional>

#include "platform/folder/posix/drive_folder.h"

namespace quillvane {

// Goes from one open folder to the next and never through a link; a link goes itself. What cannot
// be removed stays, as does a file that `is_kept` names, and what lies beside it goes all the same.
void remove_folder_contents(const HostPlace& folder,
                            const std::function<bool(const HostIdentity&)>& is_kept);

}  // namespace quillvane
