#include "platform/folder/machine_event_log.h"

namespace quillvane {

bool MachineEventLog::write(const std::string&, const std::string&, std::uint32_t,
                            std::uint16_t type, const std::string& text) {
  effects_.add("event-log", {{"text", text}, {"type", std::int64_t{type}}});
  return true;
}

}  // namespace quillvane
