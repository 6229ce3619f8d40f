// The main window's looks.
#pragma once

#include <span>
#include <string_view>

#include "view/win32/look/layout_table.h"

namespace quillvane {

[[nodiscard]] const WindowLayout& form7_layout();

// Controls of the main window that are drawn nowhere on its page of the junk scan: variables, pages
// to come, and what stands for itself (timers, menus, the tray icon).
[[nodiscard]] std::span<const std::string_view> form7_undrawn();

}  // namespace quillvane
