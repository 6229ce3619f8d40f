// The looks of a disabled button.

#include "controls/button_brush.h"

namespace quillvane {

namespace {

void caption(const ButtonBrush& b) { b.caption(CaptionMode::kDisabled); }

void look_1(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  caption(b);
  b.bevel({p.highlight, p.shadow, p.highlight, p.shadow}, 1);
  b.frame(p.shadow);
}

void look_2(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  caption(b);
  b.bevel({p.highlight, p.dark, p.light, p.shadow});
}

void look_3(const ButtonBrush& b) {
  const Color tint = b.palette.tint;
  b.canvas.fill(b.whole(), tint);
  b.caption(CaptionMode::kDisabledTinted);
  b.frame(b.scaled_shift(tint, -72));
  b.inner_corners(b.shift(tint, -72));
}

void look_5(const ButtonBrush& b) {
  caption(b);
  b.frame(b.palette.shadow);
}

void look_6(const ButtonBrush& b) {
  caption(b);
  b.outer_bevel(b.palette.shadow, b.shift(b.palette.light, 8));
  b.focus();
}

void look_7(const ButtonBrush& b) {
  caption(b);
  b.outer_bevel(b.palette.highlight, b.palette.shadow);
}

void look_9(const ButtonBrush& b) { caption(b); }

void look_11(const ButtonBrush& b) {
  if (b.button.background != nullptr) b.canvas.copy({0, 0}, *b.button.background);
  caption(b);
}

}  // namespace

const ButtonLooks kDisabledLooks = {nullptr, look_1,  look_2, look_3, draw_disabled_4,
                                    look_5,  look_6,  look_7, look_7, look_9,
                                    look_2,  look_11, look_7, look_7, draw_disabled_14};

}  // namespace quillvane
