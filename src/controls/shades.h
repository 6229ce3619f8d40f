// Shades of a colour, by whole numbers.
#pragma once

#include "forms/control.h"

namespace quillvane {

// How far a shift goes and how it treats blue.
struct ShiftRule {
  bool soft = false;        // half as far
  bool scale_blue = false;  // blue moves by its own share of 192, not by the whole delta
};

// The colour with `delta` added to its channels, which end at 0 and 255.
[[nodiscard]] Color shifted(Color color, int delta, const ShiftRule& rule = {});

// `amount` of 255 parts on the way to white.
[[nodiscard]] Color lightened(Color color, int amount);

}  // namespace quillvane
