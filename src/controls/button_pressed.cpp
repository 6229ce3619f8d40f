// The looks of a pressed button. Their caption is moved by a pixel.

#include "controls/button_brush.h"

namespace quillvane {

namespace {

void caption(const ButtonBrush& b) { b.caption(CaptionMode::kPressed); }

void look_1(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  caption(b);
  b.bevel({p.shadow, p.highlight, p.shadow, p.highlight}, 1);
  b.frame(p.dark);
}

void look_2(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  caption(b);
  if (b.button.focused && b.button.is_default) {
    b.frame(p.dark);
    b.canvas.frame({1, 1, b.w - 2, b.h - 2}, p.shadow);
  } else {
    b.bevel({p.dark, p.highlight, p.shadow, p.light});
  }
}

void look_3(const ButtonBrush& b) {
  constexpr int kSteps = 25;
  const Color base = b.shift(b.palette.tint, -32);
  for (int i = 1; i <= b.h; ++i) {
    b.row(b.h - i, 0, b.w - 1, b.shift(base, -(i * kSteps / b.h)));
  }
  caption(b);
  b.frame(7552000);
  const int right = b.w - 2;
  const int bottom = b.h - 2;
  b.row(bottom, 1, right, b.shift(base, 16));
  b.row(bottom - 1, 1, right, b.shift(base, 10));
  b.column(right, 1, bottom, b.shift(base, 5));
  b.row(1, 1, right, b.shift(base, -32));
  b.row(2, 1, right, b.shift(base, -24));
  b.column(1, 1, bottom, b.shift(base, -32));
  b.column(2, 1, bottom, b.shift(base, -22));
  b.inner_corners(8080656);
}

// Sunk: dark above, lit below, in shades of one colour.
void look_4(const ButtonBrush& b) {
  const Color shadow = b.palette.shadow;
  const Color deep = b.shift(shadow, -64);
  const int right = b.w - 2;
  const int bottom = b.h - 2;
  b.canvas.fill({1, 1, b.w - 2, b.h - 2}, b.shift(shadow, -16));
  caption(b);
  b.frame(deep);
  b.row(1, 1, right, b.shift(shadow, -32));
  b.column(1, 1, bottom, b.shift(shadow, -32));
  b.row(bottom, 2, right, b.shift(shadow, 48));
  b.column(right, 2, bottom, b.shift(shadow, 48));
  b.inner_corners(deep);
}

void look_5(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  b.canvas.fill({1, 1, b.w - 2, b.h - 2}, b.shift(p.shadow, 16));
  caption(b);
  b.canvas.frame({0, 0, b.w - 1, b.h - 1}, b.shift(p.shadow, -26));
  b.column(b.w - 1, 0, b.h - 1, p.highlight);
  b.row(b.h - 1, 0, b.w - 1, p.highlight);
  b.caption_focus();
}

void look_6(const ButtonBrush& b) {
  const Color brighter = b.shift(b.palette.light, 8);
  caption(b);
  b.bevel({b.palette.shadow, brighter, b.palette.shadow, b.shift(brighter, 8)});
  b.focus();
}

void look_7(const ButtonBrush& b) {
  caption(b);
  b.outer_bevel(b.palette.shadow, b.palette.highlight);
}

void look_9(const ButtonBrush& b) {
  constexpr int kPaler = 128;
  b.canvas.fill(b.whole(), b.button.hovering ? b.shift(b.palette.select_soft, -32)
                                             : lightened(b.palette.select, kPaler));
  caption(b);
  b.frame(b.palette.select);
  b.focus();
}

void look_11(const ButtonBrush& b) {
  if (b.button.background != nullptr) b.canvas.copy({0, 0}, *b.button.background);
  caption(b);
}

void look_12(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  caption(b);
  b.bevel({p.dark, p.highlight, p.shadow, p.light});
}

void look_13(const ButtonBrush& b) {
  b.canvas.ellipse(b.whole(), b.shift(b.palette.face, -32), b.palette.dark, 2);
  caption(b);
}

void look_14(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  b.canvas.fill({1, 1, b.w, b.h}, b.shift(p.face, -9));
  caption(b);
  b.frame(b.shift(p.shadow, -48));
  b.row(b.h - 2, 1, b.w - 2, p.highlight);
  b.column(b.w - 2, 1, b.h - 2, p.highlight);
}

}  // namespace

const ButtonLooks kPressedLooks = {nullptr, look_1,  look_2,  look_3,  look_4,
                                   look_5,  look_6,  look_7,  look_7,  look_9,
                                   look_2,  look_11, look_12, look_13, look_14};

}  // namespace quillvane
