// The user's hand: clicks and keys that reach the program as those of a user do, and a look at the
// screen. The script that runs the tests lends it (run_on_screen.sh).
#pragma once

#include <windows.h>

#include <set>
#include <string>

namespace quillvane {

void click_at(POINT place);
void right_click_at(POINT place);
void double_click_at(POINT place);
// Keys as the hand's tool names them: "Tab", "Return", "space", "n".
void press_keys(const std::string& keys);
// Types a text into the control that has the focus.
void type_text(const std::string& text);

// The colours (0x00BBGGRR) that show in an area of the screen.
[[nodiscard]] std::set<COLORREF> colors_in(const RECT& area);
[[nodiscard]] bool shows_color(const RECT& area, COLORREF color);

// Keeps a picture of an area of the screen, when the script was told where to.
void keep_picture(const std::string& name, const RECT& area);

}  // namespace quillvane
