// The processes of this PC.
#pragma once

#include "platform/processes.h"

namespace quillvane {

class Win32Processes final : public Processes {
 public:
  [[nodiscard]] std::vector<ProcessInfo> list() const override;
  [[nodiscard]] bool terminate(std::uint32_t id) override;
};

}  // namespace quillvane
