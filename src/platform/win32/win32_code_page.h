// The code pages of this Windows.
#pragma once

#include "platform/code_page.h"

namespace quillvane {

// Null for a page that no Windows has as its system's, or that is not installed. Lives as long as
// the program.
[[nodiscard]] const CodePage* win32_code_page(int number);

}  // namespace quillvane
