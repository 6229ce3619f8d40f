// Popup menus on the screen.
#pragma once

#include <windows.h>

#include "forms/buttons.h"

namespace quillvane {

// Shows the menu at a place of the screen until an entry is chosen or the menu is left; null when
// it is left.
[[nodiscard]] MenuEntry* choose_from(const Menu& menu, HWND owner, POINT place);

}  // namespace quillvane
