// The looks of the small windows that wait for the user.
#pragma once

#include "view/win32/look/layout_table.h"

namespace quillvane {

[[nodiscard]] const WindowLayout& form1_layout();     // the ignore list
[[nodiscard]] const WindowLayout& form2_layout();     // the user's own categories
[[nodiscard]] const WindowLayout& form4_layout();     // one file type
[[nodiscard]] const WindowLayout& form5_layout();     // one of the user's own categories
[[nodiscard]] const WindowLayout& frmabout_layout();  // about the program

}  // namespace quillvane
