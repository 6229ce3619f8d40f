// A point in time as Windows keeps it for files.
#pragma once

#include <compare>
#include <cstdint>

namespace quillvane {

// 100-nanosecond steps since 1601-01-01 00:00 UTC.
struct FileTime {
  std::int64_t ticks = 0;

  friend auto operator<=>(const FileTime&, const FileTime&) = default;
};

}  // namespace quillvane
