// An entry for the system's application log.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/event_log.h"

namespace quillvane {

class EventLog {
 public:
  static constexpr std::int32_t kError = 1;
  static constexpr std::int32_t kWarning = 2;
  static constexpr std::int32_t kInformation = 4;

  explicit EventLog(SystemEventLog& log) : log_(log) {}

  std::string Server;  // empty: this machine
  std::int32_t LogType = 0;
  std::string Description;
  std::string EventID;  // holds a number
  std::string Application;

  // An argument that is not empty (or 0) replaces its property; then the entry is written. False
  // when the type is none of the three, the id is no number above 0, application or description are
  // empty, or the log took no entry.
  bool WriteEvent(std::string_view description, std::string_view application,
                  std::string_view event_id, std::int32_t log_type);

 private:
  SystemEventLog& log_;
};

}  // namespace quillvane
