#include "controls/button_brush.h"

#include <optional>

#include "controls/button_picture.h"

namespace quillvane {

namespace {

// The area that the picture leaves to the caption.
Rect caption_area(const ButtonPaint& button) {
  Rect area = Rect{0, 0, button.size.width, button.size.height}.inset(1);
  if (button.picture == nullptr) return area;
  const int width = button.picture->width;
  const int height = button.picture->height;
  switch (button.picture_position) {
    case PicturePosition::kLeft:
      return {area.x + width, area.y, area.width - width, area.height};
    case PicturePosition::kRight:
      return {area.x, area.y, area.width - width, area.height};
    case PicturePosition::kTop:
      return {area.x, area.y + height, area.width, area.height - height};
    case PicturePosition::kBottom:
      return {area.x, area.y, area.width, area.height - height};
    case PicturePosition::kBehind:
      break;
  }
  return area;
}

// One pixel from the caption, in the middle of the other direction; without a caption in the
// middle of both.
Rect picture_box(const ButtonPaint& button, const Rect& caption) {
  if (button.picture == nullptr) return {};
  const Size size{button.picture->width, button.picture->height};
  const Rect box = centred(size, {0, 0, button.size.width, button.size.height});
  if (caption.empty()) return box;
  switch (button.picture_position) {
    case PicturePosition::kLeft:
      return {caption.x - 1 - size.width, box.y, size.width, size.height};
    case PicturePosition::kRight:
      return {caption.right() + 1, box.y, size.width, size.height};
    case PicturePosition::kTop:
      return {box.x, caption.y - 1 - size.height, size.width, size.height};
    case PicturePosition::kBottom:
      return {box.x, caption.bottom() + 1, size.width, size.height};
    case PicturePosition::kBehind:
      break;
  }
  return box;
}

}  // namespace

ButtonBrush::ButtonBrush(Canvas& on, const ButtonPaint& of)
    : canvas(on),
      button(of),
      palette(make_palette(of.colors, on.colors())),
      w(of.size.width),
      h(of.size.height) {}

ButtonBrush::Layout ButtonBrush::layout() const {
  const Rect area = caption_area(button);
  const Size size = canvas.measure(button.caption, button.font, area.width);
  const Rect caption = centred(size, area);
  return {caption, picture_box(button, caption)};
}

void ButtonBrush::write(const Rect& at, Color color) const {
  canvas.text(at, button.caption, button.font, color);
}

// The caption twice behind itself: its lit and its dark side.
void ButtonBrush::write_effect(const Rect& at) const {
  if (button.special_effect == 0) return;
  const bool is_raised = button.special_effect == 1;
  const Color dark = shift(palette.shadow, -50);
  write(at.moved(1, 1), is_raised ? dark : palette.highlight);
  write(at.moved(-1, -1), is_raised ? palette.highlight : dark);
}

void ButtonBrush::draw_picture(const Rect& at, CaptionMode mode) const {
  const bool takes_over = mode == CaptionMode::kOver && button.picture_over != nullptr;
  const Image* normal = takes_over ? button.picture_over : button.picture;
  if (normal == nullptr) return;
  const Image shown = button.use_mask_color ? without_mask(*normal, palette.mask) : *normal;
  const bool is_disabled = mode == CaptionMode::kDisabled || mode == CaptionMode::kDisabledTinted;
  if (!is_disabled) {
    canvas.picture(at, shown);
  } else if (button.use_greyscale) {
    const bool is_tinted = mode == CaptionMode::kDisabledTinted;
    canvas.picture(at, in_grey(shown, is_tinted ? palette.tint : 0xFFFFFF));
  } else {
    canvas.picture(at, silhouette(shown, palette.highlight));
    canvas.picture(at.moved(-1, -1), silhouette(shown, palette.shadow));
  }
}

void ButtonBrush::caption(CaptionMode mode) const {
  const Layout place = layout();
  const int down = mode == CaptionMode::kPressed ? 1 : 0;
  draw_picture(place.picture.moved(down, down), mode);
  const Rect at = place.caption.moved(down, down);
  switch (mode) {
    case CaptionMode::kDisabled:
      write(at, palette.highlight);
      write(at.moved(-1, -1), palette.shadow);
      return;
    case CaptionMode::kDisabledTinted:
      write(at, scaled_shift(palette.tint, -104));
      return;
    case CaptionMode::kPlain:
    case CaptionMode::kOver:
    case CaptionMode::kPressed:
      break;
  }
  write_effect(at);
  const bool is_lit = mode == CaptionMode::kPressed && button.type == 4;
  write(at, is_lit                        ? palette.light
            : mode == CaptionMode::kPlain ? palette.text
                                          : palette.text_over);
}

void ButtonBrush::focus() const {
  if (!button.focused || !button.show_focus_rect) return;
  canvas.dotted_frame(focus_box(button.type, button.size), palette.text);
}

void ButtonBrush::caption_focus() const {
  constexpr Color kAroundCaption = 0xCC9999;
  if (!button.focused || !button.show_focus_rect) return;
  const Rect at = layout().caption;
  canvas.frame({at.x - 2, at.y - 1, at.width + 4, at.height + 2}, kAroundCaption);
}

void ButtonBrush::row(int y, int from, int to, Color color) const {
  if (from <= to) canvas.line({from, y}, {to, y}, color);
}

void ButtonBrush::column(int x, int from, int to, Color color) const {
  if (from <= to) canvas.line({x, from}, {x, to}, color);
}

void ButtonBrush::outer_bevel(Color top, Color bottom, int inset) const {
  const int right = w - 1 - inset;
  const int below = h - 1 - inset;
  row(inset, inset, right, top);
  column(inset, inset, below, top);
  row(below, inset, right, bottom);
  column(right, inset, below, bottom);
}

void ButtonBrush::bevel(const Bevel& colors, int inset) const {
  outer_bevel(colors.outer_top, colors.outer_bottom, inset);
  outer_bevel(colors.inner_top, colors.inner_bottom, inset + 1);
}

void ButtonBrush::inner_corners(Color color) const {
  for (const int x : {1, w - 2}) {
    for (const int y : {1, h - 2}) canvas.pixel({x, y}, color);
  }
}

void paint_button(Canvas& canvas, const ButtonPaint& button) {
  if (button.size.width <= 0 || button.size.height <= 0) return;
  ButtonPaint painted = button;
  painted.hovering = button.hovering && button.enabled;
  painted.colors.scaled_tint = button.type == 3;
  // All edges follow the colour that the mouse brings.
  const bool takes_over_color = painted.hovering && button.colors.scheme == ColorScheme::kCustom;
  if (takes_over_color) painted.colors.back = button.colors.back_over;

  canvas.clip(button_region(button.type, button.size));
  const ButtonBrush brush(canvas, painted);
  canvas.fill(brush.whole(), brush.palette.face);
  const ButtonLooks& looks = !button.enabled  ? kDisabledLooks
                             : button.pressed ? kPressedLooks
                                              : kNormalLooks;
  looks.at(static_cast<std::size_t>(button.type))(brush);
}

}  // namespace quillvane
