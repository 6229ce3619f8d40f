// Dates and times in formats of the program's own, whatever the system's format.
#pragma once

#include <string>
#include <string_view>

#include "platform/system_info.h"

namespace quillvane {

// `format` with "dd", "mm" and "yyyy" replaced by day, month and year; all else stays.
[[nodiscard]] std::string date_text(const DateTime& date, std::string_view format);

// `format` with "hh", "mm" and "ss" replaced by hour, minute and second; all else stays.
[[nodiscard]] std::string time_text(const DateTime& time, std::string_view format);

}  // namespace quillvane
