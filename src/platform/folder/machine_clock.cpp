#include "platform/folder/machine_clock.h"

#include <cstdint>
#include <ratio>

namespace quillvane {

FileTime machine_clock(std::chrono::system_clock::time_point host, int utc_offset_minutes) {
  using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;
  constexpr std::chrono::sys_days kEpoch = std::chrono::year{1601} / std::chrono::January / 1;
  // The host counts finer steps from a later year: turned into ticks before they are added up,
  // since so many of its own would overflow.
  const auto since_1970 = std::chrono::floor<Ticks>(host.time_since_epoch());
  const Ticks to_1970 = -kEpoch.time_since_epoch();
  return {(to_1970 + since_1970 + std::chrono::minutes(utc_offset_minutes)).count()};
}

}  // namespace quillvane
