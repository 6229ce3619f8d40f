// What the looks of a chameleonButton are drawn with.
#pragma once

#include <array>

#include "controls/button_painter.h"

namespace quillvane {

// How a caption is drawn; the numbers are the looks' own.
enum class CaptionMode {
  kPlain = 0,
  kOver = 1,
  kPressed = 2,         // moved
  kDisabled = 3,        // etched
  kDisabledTinted = 5,  // of type 3
};

// The colours of two rings, each with one of its left and top and one of its right and bottom.
struct Bevel {
  Color outer_top;
  Color outer_bottom;
  Color inner_top;
  Color inner_bottom;
};

class ButtonBrush {
 public:
  ButtonBrush(Canvas& on, const ButtonPaint& of);

  // Where the caption stands when nothing moves it; and the picture.
  struct Layout {
    Rect caption;
    Rect picture;
  };
  [[nodiscard]] Layout layout() const;

  // A shift as the button's bevels have it.
  [[nodiscard]] Color shift(Color color, int delta) const {
    return shifted(color, delta, {.soft = button.colors.soft_bevel});
  }
  [[nodiscard]] Color scaled_shift(Color color, int delta) const {
    return shifted(color, delta, {.soft = button.colors.soft_bevel, .scale_blue = true});
  }
  // Whether it has the focus or Enter presses it.
  [[nodiscard]] bool stands_out() const { return button.focused || button.is_default; }
  [[nodiscard]] Rect whole() const { return {0, 0, w, h}; }

  // The picture and the caption.
  void caption(CaptionMode mode) const;
  // In the mode of an enabled button that is not pressed.
  void caption() const { caption(button.hovering ? CaptionMode::kOver : CaptionMode::kPlain); }
  // The dotted one, of a button that shows where the focus is.
  void focus() const;
  // That of type 5, around the caption.
  void caption_focus() const;

  void frame(Color color) const { canvas.frame(whole(), color); }
  // A row or column from one pixel to another, both painted. Nothing when they are the wrong way
  // round, as in a button without room.
  void row(int y, int from, int to, Color color) const;
  void column(int x, int from, int to, Color color) const;
  // The right and bottom sides have the corners that they share with the others.
  void bevel(const Bevel& colors, int inset = 0) const;
  void outer_bevel(Color top, Color bottom, int inset = 0) const;
  // One pixel inside each corner.
  void inner_corners(Color color) const;

  Canvas& canvas;
  const ButtonPaint& button;
  const ButtonPalette palette;
  const int w;
  const int h;

 private:
  void write(const Rect& at, Color color) const;
  void write_effect(const Rect& at) const;
  void draw_picture(const Rect& at, CaptionMode mode) const;
};

using ButtonLook = void (*)(const ButtonBrush& brush);
// By the type; that at 0 is none.
using ButtonLooks = std::array<ButtonLook, kLastButtonType + 1>;

// These stand beside the normal looks, with which they share their drawing.
void draw_disabled_4(const ButtonBrush& brush);
void draw_disabled_14(const ButtonBrush& brush);

extern const ButtonLooks kNormalLooks;
extern const ButtonLooks kPressedLooks;
extern const ButtonLooks kDisabledLooks;

}  // namespace quillvane
