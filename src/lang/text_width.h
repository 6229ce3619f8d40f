// How wide a text is about, where no screen can be asked.
#pragma once

#include <string_view>

namespace quillvane {

// Pixels of a line in the usual font of the windows (Segoe UI, 9 points; for Chinese and Japanese
// the system's fonts of that size) at 100 percent: right to a few hundredths for whole words.
[[nodiscard]] int estimated_width(std::string_view text);

}  // namespace quillvane
