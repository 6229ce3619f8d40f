// Points in time as Windows hands them out.
#pragma once

#include <windows.h>

#include <cstdint>

#include "platform/file_time.h"

namespace quillvane {

[[nodiscard]] inline FileTime file_time(const FILETIME& time) {
  return {
      static_cast<std::int64_t>(std::uint64_t{time.dwHighDateTime} << 32U | time.dwLowDateTime)};
}

}  // namespace quillvane
