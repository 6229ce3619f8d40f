// File times as dates for display.
#pragma once

#include <optional>

#include "platform/file_time.h"
#include "platform/system_info.h"

namespace quillvane {

// The calendar date of a file time, without any change of time zone; nothing for times that the
// system cannot express (before 1601 or after 30827).
[[nodiscard]] std::optional<DateTime> calendar_date(FileTime time);

// The file time of a calendar date.
[[nodiscard]] FileTime file_time_of(const DateTime& date);

// A file time as the date that is shown. The date passes through the text form
// month/day/year hour:minute:second, which the system reads by its own order of the parts: where
// days come first, 3/7 becomes the 3rd of July, unless only the other reading is a date. UTC, as
// the file system keeps it. Meant so: these dates only serve to be displayed.
[[nodiscard]] std::optional<DateTime> FileTimeToDate(FileTime time, DateOrder order);

}  // namespace quillvane
