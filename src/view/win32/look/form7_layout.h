// The main window's looks.
#pragma once

#include "view/win32/look/layout_table.h"

namespace quillvane {

[[nodiscard]] const WindowLayout& form7_layout();

}  // namespace quillvane
