// The picture of a window's shadow.
#pragma once

#include "controls/shapes.h"
#include "forms/control.h"
#include "platform/image.h"

namespace quillvane {

inline constexpr int kLeastShadow = 1;
inline constexpr int kMostShadow = 100;

// What a shadow looks like; the four values that its window keeps.
struct ShadowLook {
  int size = 40;  // pixels on each side, kLeastShadow to kMostShadow
  Color color = 0xFF0000;
  int curve = 25;    // percentage: 50 falls off straight, less falls at first
  int opacity = 50;  // percentage, beside the window

  bool operator==(const ShadowLook&) const = default;
};

// How much of the shadow is left at a distance of 0 (at the window) to 1 (at its end), for a curve
// of 0 to 1.
[[nodiscard]] double shadow_share(double distance, double curve);

// A corner of the shadow, its origin at the window's own corner. Straight alpha.
[[nodiscard]] Image shadow_cell(const ShadowLook& look);

// The shadow around a window of that size: larger by twice the shadow's own, transparent under the
// window. Straight alpha.
[[nodiscard]] Image shadow_picture(Size window, const ShadowLook& look);

// The same picture with its colours multiplied by their alpha, as a layered window takes it.
[[nodiscard]] Image premultiplied(const Image& picture);

}  // namespace quillvane
