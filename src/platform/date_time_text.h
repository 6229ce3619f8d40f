// Dates and times as files and commands write them, whatever the system's format.
#pragma once

#include <optional>
#include <string_view>

#include "platform/system_info.h"

namespace quillvane {

// Reads "2013-03-07 09:05:00", exactly so; nothing for any other form, and for a day or time that
// no calendar or clock shows.
[[nodiscard]] std::optional<DateTime> date_time_from_text(std::string_view text);

}  // namespace quillvane
