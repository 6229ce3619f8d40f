// The looks of a button that is neither pressed nor disabled.

#include "controls/button_brush.h"

namespace quillvane {

namespace {

constexpr Color kRoundFrame = 0x733C00;    // of type 3
constexpr Color kRoundCorners = 0x7B4D10;  // likewise, one pixel inside

void look_1(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  b.caption();
  b.bevel({p.highlight, p.shadow, p.highlight, p.shadow}, 1);
  b.frame(p.dark);
  b.focus();
}

void look_2(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  const bool stands_out = b.stands_out();
  b.caption();
  b.bevel({p.highlight, p.dark, p.light, p.shadow}, stands_out ? 1 : 0);
  if (!stands_out) return;
  b.focus();
  b.frame(p.dark);
}

// The shades of a button at rest, from the colour that its gradient began with.
void rest_lines_3(const ButtonBrush& b) {
  const Color tint = b.palette.tint;
  const int right = b.w - 2;
  const int bottom = b.h - 2;
  b.row(bottom, 1, right, b.shift(tint, -48));
  b.row(bottom - 1, 1, right, b.shift(tint, -32));
  b.column(right, 1, bottom, b.shift(tint, -36));
  b.column(right - 1, 1, bottom, b.shift(tint, -24));
  b.row(1, 1, right, b.shift(tint, 16));
  b.row(2, 1, right, b.shift(tint, 10));
  b.column(1, 1, bottom, b.shift(tint, -5));
  b.column(2, 1, bottom, b.shift(tint, -10));
}

// The glow of a button that the mouse is over or that stands out otherwise.
struct Glow {
  Color frame;
  Color bottom;
  Color top;
  Color second;  // the row below the top
  Color sides;
};
constexpr Glow kHoverGlow = {3257087, 38631, 13562879, 9231359, 7064575};
constexpr Glow kFocusGlow = {15183500, 15696491, 16771022, 16242621, 15782325};

void glow_3(const ButtonBrush& b, const Glow& glow) {
  const int right = b.w - 2;
  const int bottom = b.h - 2;
  b.canvas.frame({1, 2, b.w - 2, b.h - 4}, glow.frame);
  b.row(bottom, 1, right, glow.bottom);
  b.row(1, 1, right, glow.top);
  b.row(2, 1, right, glow.second);
  // Inside of the frame, whose lowest row stays as it is.
  b.column(2, 3, bottom - 2, glow.sides);
  b.column(right - 1, 3, bottom - 2, glow.sides);
}

void look_3(const ButtonBrush& b) {
  constexpr int kSteps = 25;
  for (int i = 1; i <= b.h; ++i) {
    b.row(i, 0, b.w - 1, b.shift(b.palette.tint, -(i * kSteps / b.h)));
  }
  b.caption();
  b.frame(kRoundFrame);
  if (b.button.hovering) {
    glow_3(b, kHoverGlow);
  } else if (b.stands_out()) {
    glow_3(b, kFocusGlow);
  } else {
    rest_lines_3(b);
  }
  b.inner_corners(kRoundCorners);
}

void look_5(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  b.canvas.fill({1, 1, b.w - 1, b.h - 1}, p.face_over);
  b.caption();
  b.canvas.frame({0, 0, b.w - 1, b.h - 1}, p.dark);
  b.canvas.pixel({1, b.h - 2}, p.dark);
  b.canvas.pixel({b.w - 2, 1}, p.dark);
  b.caption_focus();
}

void look_6(const ButtonBrush& b) {
  b.caption();
  b.outer_bevel(b.palette.shadow, b.shift(b.palette.light, 8));
  b.focus();
}

void look_7(const ButtonBrush& b) {
  b.caption();
  b.outer_bevel(b.palette.highlight, b.palette.shadow);
  b.focus();
}

void look_8(const ButtonBrush& b) {
  b.caption();
  if (b.button.hovering) b.outer_bevel(b.palette.highlight, b.palette.shadow);
  b.focus();
}

void look_9(const ButtonBrush& b) {
  if (b.button.hovering) b.canvas.fill({1, 1, b.w, b.h}, b.palette.select_soft);
  b.caption();
  if (b.button.hovering) b.frame(b.palette.select);
  b.focus();
}

void look_11(const ButtonBrush& b) {
  if (b.button.background != nullptr) b.canvas.copy({0, 0}, *b.button.background);
  b.caption();
  b.focus();
}

void look_12(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  b.caption();
  if (b.button.hovering) b.bevel({p.highlight, p.dark, p.light, p.shadow});
  b.focus();
}

void look_13(const ButtonBrush& b) {
  const ButtonPalette& p = b.palette;
  b.canvas.ellipse(b.whole(), b.button.hovering ? p.shadow : p.face, p.dark, 2);
  b.caption();
}

// With the frame that the state asks for. Left and top catch the light one pixel inside; single
// pixels cut the corners.
void draw_4(const ButtonBrush& b, Color frame) {
  const ButtonPalette& p = b.palette;
  const int right = b.w - 2;
  const int bottom = b.h - 2;
  b.frame(frame);
  b.row(1, 1, right, p.face);
  b.column(1, 1, bottom, p.face);
  b.row(2, 2, right - 1, p.highlight);
  b.column(2, 2, bottom - 1, p.highlight);
  b.row(bottom, 2, right, p.shadow);
  b.column(right, 2, bottom, p.shadow);
  b.canvas.pixel({3, 3}, p.highlight);
  b.canvas.pixel({b.w - 4, b.h - 4}, p.highlight);
  b.inner_corners(p.dark);
}

void look_4(const ButtonBrush& b) {
  b.caption();
  draw_4(b, b.palette.dark);
}

// A sheet of paper: lit from above, ruled at its foot. Its caption is underlined under the mouse.
void sheet_14(const ButtonBrush& b) {
  constexpr int kSteps = 25;
  if (b.button.hovering) {
    b.canvas.fill(b.whole(), b.palette.light);
    return;
  }
  for (int i = 1; i <= b.h; ++i) {
    b.row(i - 1, 0, b.w - 1, b.shift(b.palette.highlight, -(i * kSteps / b.h)));
  }
}

void edges_14(const ButtonBrush& b, Color frame) {
  b.row(b.h - 2, 1, b.w - 2, b.palette.shadow);
  b.frame(frame);
}

void look_14(const ButtonBrush& b) {
  sheet_14(b);
  ButtonPaint underlined = b.button;
  underlined.font.underline = b.button.font.underline || b.button.hovering;
  ButtonBrush(b.canvas, underlined).caption();
  edges_14(b, b.palette.shadow);
}

}  // namespace

void draw_disabled_4(const ButtonBrush& b) {
  b.caption(CaptionMode::kDisabled);
  draw_4(b, b.palette.shadow);
}

void draw_disabled_14(const ButtonBrush& b) {
  sheet_14(b);
  b.caption(CaptionMode::kDisabled);
  edges_14(b, b.palette.tint);
}

const ButtonLooks kNormalLooks = {nullptr, look_1,  look_2,  look_3,  look_4,
                                  look_5,  look_6,  look_7,  look_8,  look_9,
                                  look_2,  look_11, look_12, look_13, look_14};

}  // namespace quillvane
