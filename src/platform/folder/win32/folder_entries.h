// What lies in a folder of a drive: its files and folders, and what its links lead to.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/folder/win32/host_drive.h"
#include "platform/reading_state.h"

namespace quillvane {

struct HostFile {
  std::string name;  // as stored
  HostStatus status{};
  bool is_link = false;  // the status is that of where it leads
};

// In no order. Links that lead nowhere are left out, and names that would be a path on the machine.
// Each is opened to see where it lies: not every host tells a link to a file from a file. Requires:
// the folder is held with Access::kListed. Stops where `state` ends the reading.
[[nodiscard]] std::vector<HostFile> read_entries(const HostDrive& drive, const HeldPlace& folder,
                                                 const ReadingState& state);

// Removes all that lies in a folder; links go themselves where the host allows it. What cannot be
// removed stays, as does a file that `is_kept` names, and what lies beside it goes all the same.
void remove_entries(const HeldPlace& folder, const std::function<bool(const HeldPlace&)>& is_kept);

}  // namespace quillvane
