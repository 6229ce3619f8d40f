// The application log of a machine folder: an entry is kept as an effect, and nowhere else.
#pragma once

#include <cstdint>
#include <string>

#include "platform/event_log.h"
#include "platform/virtual/effect_log.h"

namespace quillvane {

class MachineEventLog final : public SystemEventLog {
 public:
  // `effects` outlives this object.
  explicit MachineEventLog(EffectLog& effects) : effects_(effects) {}

  // Adds the effect "event-log" with "text" and "type".
  [[nodiscard]] bool write(const std::string& server, const std::string& application,
                           std::uint32_t event_id, std::uint16_t type,
                           const std::string& text) override;

 private:
  EffectLog& effects_;
};

}  // namespace quillvane
