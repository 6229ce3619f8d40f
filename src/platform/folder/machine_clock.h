// The clock on the wall of a machine folder.
#pragma once

#include <chrono>

#include "platform/file_time.h"

namespace quillvane {

// What it shows at a time of the host, `utc_offset_minutes` east of Greenwich.
[[nodiscard]] FileTime machine_clock(std::chrono::system_clock::time_point host,
                                     int utc_offset_minutes);

}  // namespace quillvane
