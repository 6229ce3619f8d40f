// The system's application log.
#pragma once

#include <cstdint>
#include <string>

namespace quillvane {

class SystemEventLog {
 public:
  virtual ~SystemEventLog() = default;

  // Writes one entry. `server` empty is this machine; `type` is 1 error, 2 warning,
  // 4 information. False when the log took no entry.
  [[nodiscard]] virtual bool write(const std::string& server, const std::string& application,
                                   std::uint32_t event_id, std::uint16_t type,
                                   const std::string& text) = 0;
};

}  // namespace quillvane
