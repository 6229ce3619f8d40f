// From the paths of a machine to the places on the host that they name.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/folder/machine_state.h"
#include "platform/folder/posix/drive_folder.h"
#include "platform/folder/posix/host_status.h"
#include "platform/folder/posix/name_index.h"
#include "platform/folder/windows_path.h"

namespace quillvane {

class MachinePaths {
 public:
  // Looks at the machine anew by each call.
  explicit MachinePaths(const MachineState& machine) : machine_(machine) {}

  // By which names of another case are found on all drives.
  [[nodiscard]] NameIndex& names() const { return *names_; }

  // Drive and names of a path that is short enough to be opened, "Sysnative" led to where a 32-bit
  // program is led. Nothing for any other text.
  [[nodiscard]] std::optional<WindowsPath> parse(std::string_view text) const;

  // The path of the drive's host folder; empty for a drive that the machine does not have.
  [[nodiscard]] std::string host_folder(char letter) const;

  // The host folder of the drive; on a drive that the machine does not have nothing is found.
  [[nodiscard]] DriveFolder drive(char letter) const;

  // What a path leads to, links followed.
  [[nodiscard]] std::optional<HostPlace> find(std::string_view path) const;

  // Whether another program holds this file open, whatever path led to it.
  [[nodiscard]] bool is_in_use(const HostIdentity& file) const;

  // The folders that cannot be listed.
  [[nodiscard]] std::vector<HostIdentity> denied() const;

 private:
  const MachineState& machine_;
  std::shared_ptr<NameIndex> names_ = std::make_shared<NameIndex>();
};

}  // namespace quillvane
