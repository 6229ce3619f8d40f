// The tables of all windows.
#pragma once

#include <string_view>

#include "view/win32/look/layout_table.h"

namespace quillvane {

// The table of the window of that name; null when there is none.
[[nodiscard]] const WindowLayout* find_layout(std::string_view window);

}  // namespace quillvane
