// The colour that the suite has chosen for its windows.
#pragma once

#include "forms/control.h"
#include "platform/platform.h"

namespace quillvane {

inline constexpr Color kSuiteColor = 10118205;  // when the suite has set none

// Value "color" of the suite's key, a decimal number; kSuiteColor for anything else.
[[nodiscard]] Color suite_color(const Platform& platform);

}  // namespace quillvane
