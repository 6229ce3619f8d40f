// The pictures that an Xp_ProgressBar is put together from.
#pragma once

#include <string_view>

#include "forms/control.h"
#include "platform/image.h"

namespace quillvane {

inline constexpr int kBarLooks = 8;
inline constexpr int kBarBlock = 10;  // pixels from one block to the next
inline constexpr int kBarCap = 3;     // width of the frame, on each side

// The blocks of one look, as high as they were drawn.
struct BlockPictures {
  Image block;  // kBarBlock wide, the gap to the next block included
  Image fill;   // one column, to be stretched
};

// The name of a look's pictures; `look` is 0 to kBarLooks - 1, and any other is the first.
[[nodiscard]] std::string_view block_pictures_name(int look);
[[nodiscard]] BlockPictures block_pictures(int look);

// The frame (`img`) of a bar of that height: a cap, a column that is stretched, a cap.
[[nodiscard]] Image bar_frame(int height);

// The colour of a bar that shows nothing (`blank`).
inline constexpr Color kBarBlank = 0xFAFAFA;

}  // namespace quillvane
