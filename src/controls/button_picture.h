// The picture of a button, as its state shows it.
#pragma once

#include "controls/button_look.h"

namespace quillvane {

// The picture with the pixels of `mask` let through.
[[nodiscard]] Image without_mask(const Image& picture, Color mask);
// Without its colours; with a tint, as light through glass of that colour.
[[nodiscard]] Image in_grey(const Image& picture, Color tint = 0xFFFFFF);
// Its shape in one colour.
[[nodiscard]] Image silhouette(const Image& picture, Color color);

}  // namespace quillvane
