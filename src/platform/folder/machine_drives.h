// The drives of a machine folder.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/drives.h"
#include "platform/folder/machine_state.h"

namespace quillvane {

// A size that machine.json does not give is that of the host's file system below the drive's
// folder; a CD drive without any given size has no medium.
class MachineDrives final : public Drives {
 public:
  // `state` outlives this object.
  explicit MachineDrives(const MachineState& state) : state_(state) {}

  [[nodiscard]] std::vector<std::string> list() const override;
  [[nodiscard]] DriveType type(const std::string& root) const override;
  [[nodiscard]] std::optional<DriveSpace> space(const std::string& root) const override;

 private:
  // Null when there is no such drive.
  [[nodiscard]] const MachineDrive* find(const std::string& root) const;

  const MachineState& state_;
};

}  // namespace quillvane
