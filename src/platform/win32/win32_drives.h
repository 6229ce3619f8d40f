// The drives of this PC.
#pragma once

#include "platform/drives.h"

namespace quillvane {

class Win32Drives final : public Drives {
 public:
  [[nodiscard]] std::vector<std::string> list() const override;
  [[nodiscard]] DriveType type(const std::string& root) const override;
  [[nodiscard]] std::optional<DriveSpace> space(const std::string& root) const override;
};

}  // namespace quillvane
