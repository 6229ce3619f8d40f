// The code pages of the computer that holds a machine folder.
#pragma once

#include "platform/code_page.h"

namespace quillvane {

// Null for a page that no Windows has as its system's, or that the computer does not know. Lives as
// long as the program.
[[nodiscard]] const CodePage* host_code_page(int number);

}  // namespace quillvane
