#include "support/event_log.h"

#include <cmath>

#include "support/val.h"

namespace quillvane {

bool EventLog::WriteEvent(std::string_view description, std::string_view application,
                          std::string_view event_id, std::int32_t log_type) {
  if (log_type != 0) LogType = log_type;
  if (!event_id.empty()) EventID = event_id;
  if (!application.empty()) Application = application;
  if (!description.empty()) Description = description;

  const bool known_type = LogType == kError || LogType == kWarning || LogType == kInformation;
  const double number = Val(EventID);
  const double id = std::nearbyint(number);  // 0.5 is above 0, and goes out as 0
  constexpr double kLargestId = 4294967295.0;
  if (!known_type || !(number > 0) || id > kLargestId) return false;
  if (Application.empty() || Description.empty()) return false;
  return log_.write(Server, Application, static_cast<std::uint32_t>(id),
                    static_cast<std::uint16_t>(LogType), Description);
}

}  // namespace quillvane
