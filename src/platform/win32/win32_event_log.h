// The application log of this PC, or of another that is named.
#pragma once

#include "platform/event_log.h"

namespace quillvane {

class Win32EventLog final : public SystemEventLog {
 public:
  [[nodiscard]] bool write(const std::string& server, const std::string& application,
                           std::uint32_t event_id, std::uint16_t type,
                           const std::string& text) override;
};

}  // namespace quillvane
