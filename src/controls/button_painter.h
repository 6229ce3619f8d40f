// Painting of a chameleonButton.
#pragma once

#include <string>

#include "controls/button_look.h"

namespace quillvane {

// Where the picture stands to the caption.
enum class PicturePosition { kLeft = 0, kRight = 1, kTop = 2, kBottom = 3, kBehind = 4 };

// All that painting asks of a button.
struct ButtonPaint {
  int type = 2;  // 1 to 14
  Size size = {};
  ButtonColors colors = {};
  std::string caption = {};
  FontStyle font = {};
  bool enabled = true;
  bool pressed = false;
  bool hovering = false;
  bool focused = false;
  bool is_default = false;  // the container's default button: Enter presses it
  bool show_focus_rect = true;
  int special_effect = 0;  // 1 raises the caption, another number but 0 sinks it
  // Not owned; null without one.
  const Image* picture = nullptr;
  const Image* picture_over = nullptr;
  const Image* background = nullptr;  // of type 11: what lies under the button
  PicturePosition picture_position = PicturePosition::kLeft;
  bool use_mask_color = true;
  bool use_greyscale = false;
};

// At the canvas's origin, clipped to the button's shape.
void paint_button(Canvas& canvas, const ButtonPaint& button);

}  // namespace quillvane
