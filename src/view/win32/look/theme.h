// The colours of the windows.
#pragma once

#include "forms/control.h"

namespace quillvane {

// Of the user's Windows.
struct SystemColors {
  Color window = 0;
  Color window_text = 0;
  Color face = 0;
  Color face_text = 0;
  Color gray_text = 0;
  Color highlight = 0;
  Color highlight_text = 0;
  Color hot_light = 0;  // of links
};

struct Theme {
  bool high_contrast = false;
  Color title = 0;  // title bar
  Color title_text = 0;
  Color page = 0;  // behind the controls
  Color text = 0;
  Color border = 0;
  Color list = 0;  // behind rows and nodes
  Color list_text = 0;
  Color box_edge = 0;  // of an empty box before a row or node
  Color link = 0;
  Color button = 0;
  Color button_over = 0;  // while the mouse is over it
  Color button_pressed = 0;
  Color disabled_text = 0;
  Color main_button = 0;
  Color main_button_text = 0;
  Color focus = 0;
};

// From the suite's colour; in high contrast from the system's alone.
[[nodiscard]] Theme make_theme(Color suite, const SystemColors& system, bool high_contrast);

// Black or white, whichever is read better on `background`.
[[nodiscard]] Color readable_on(Color background);

// The ratio of contrast between two colours: from 1, the same, to 21, black and white.
[[nodiscard]] double contrast(Color one, Color other);

// `share` of 256 parts of `other`, the rest of `color`.
[[nodiscard]] Color mixed(Color color, Color other, int share);

// The colour of a node's text: its own, which high contrast does not know, or the list's.
[[nodiscard]] Color node_text_color(const Theme& theme, Color own);

}  // namespace quillvane
