// What the program asks of the screen: resolution, colours, fonts. Calls that an older Windows
// lacks are looked up, with the answer of that Windows in their place.
#pragma once

#include <windows.h>

#include "forms/control.h"
#include "view/win32/gdi_objects.h"
#include "view/win32/look/theme.h"

namespace quillvane {

// Dots per inch of the screen that the window stands on; 0 as window: of the main screen.
[[nodiscard]] int dpi_of(HWND window);

// The part of the screen beside the taskbar, for the screen that `window` stands on.
[[nodiscard]] RECT work_area(HWND window);

[[nodiscard]] SystemColors system_colors();
[[nodiscard]] bool high_contrast();

// Segoe UI, or what this Windows has in its place.
[[nodiscard]] FontOwner make_font(int points, int weight, int dpi);

// A font that the program names. Where this Windows does not have it, or it lacks the letters of
// its character set: the first that has them of those that Windows brings for that script. Sizes
// that no window could show are taken as the nearest one.
[[nodiscard]] FontOwner make_font(const Font& font, int weight, int dpi);

// Pixels of a text in one line.
[[nodiscard]] int text_width(HFONT font, const wchar_t* text);

[[nodiscard]] int text_height(HFONT font);

}  // namespace quillvane
