// How the shortcut window looks.
#pragma once

#include "view/win32/look/layout_table.h"

namespace quillvane {

[[nodiscard]] const WindowLayout& form3_layout();

}  // namespace quillvane
