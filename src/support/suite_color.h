// The colour that the suite has chosen for its windows.
#pragma once

#include <cstdint>

#include "platform/platform.h"

namespace quillvane {

inline constexpr std::uint32_t kSuiteColor = 10118205;  // when the suite has set none

// Value "color" of the suite's key, a decimal number, 0x00BBGGRR; kSuiteColor for anything else.
[[nodiscard]] std::uint32_t suite_color(const Platform& platform);

}  // namespace quillvane
