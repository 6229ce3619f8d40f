#include "controls/button_look.h"

namespace quillvane {

namespace {

constexpr int kPaler = 176;  // of 255, for the soft colour of the selection
constexpr int kTintShift = 48;

// Numbers of the system's colours.
enum SystemColor {
  kHighlightColor = 13,
  kFaceColor = 15,
  kShadowColor = 16,
  kTextColor = 18,
  kHardLightColor = 20,
  kDarkColor = 21,
  kLightColor = 22,
};

ButtonPalette system_palette(const CanvasColors& around) {
  ButtonPalette palette;
  palette.face = around.system[kFaceColor];
  palette.face_over = palette.face;
  palette.shadow = around.system[kShadowColor];
  palette.light = around.system[kLightColor];
  palette.highlight = around.system[kHardLightColor];
  palette.dark = around.system[kDarkColor];
  palette.text = around.system[kTextColor];
  palette.text_over = palette.text;
  palette.select = around.system[kHighlightColor];
  palette.select_soft = lightened(palette.select, kPaler);
  return palette;
}

constexpr ButtonPalette kFixedPalette = {.face = 0xC0C0C0,
                                         .face_over = 0xC0C0C0,
                                         .light = 0xDFDFDF,
                                         .highlight = 0xFFFFFF,
                                         .shadow = 0x808080,
                                         .dark = 0,
                                         .text = 0,
                                         .text_over = 0,
                                         .select = 0x800000,
                                         .select_soft = 13741485};

// Edges that follow from the face.
void derive_edges(ButtonPalette& palette, const ShiftRule& rule) {
  palette.shadow = shifted(palette.face, -64, rule);
  palette.light = shifted(palette.face, 31, rule);
  palette.highlight = shifted(palette.face, 47, rule);
  palette.dark = shifted(palette.face, -192, rule);
}

ButtonPalette custom_palette(const ButtonColors& colors, const CanvasColors& around) {
  const ShiftRule rule{.soft = colors.soft_bevel};
  ButtonPalette palette;
  palette.face = around.translated(colors.back);
  palette.face_over = around.translated(colors.back_over);
  palette.text = around.translated(colors.fore);
  palette.text_over = around.translated(colors.fore_over);
  derive_edges(palette, rule);
  palette.select = shifted(palette.face, -128, rule);
  palette.select_soft = palette.face;
  return palette;
}

ButtonPalette container_palette(const ButtonColors& colors, const CanvasColors& around) {
  ButtonPalette palette;
  palette.face = around.container_back;
  palette.face_over = palette.face;
  palette.text = around.container_text;
  palette.text_over = palette.text;
  derive_edges(palette, {.soft = colors.soft_bevel});
  palette.select = around.system[kHighlightColor];
  palette.select_soft = lightened(palette.select, kPaler);
  return palette;
}

ButtonPalette palette_of_scheme(const ButtonColors& colors, const CanvasColors& around) {
  switch (colors.scheme) {
    case ColorScheme::kCustom:
      return custom_palette(colors, around);
    case ColorScheme::kFixed:
      return kFixedPalette;
    case ColorScheme::kContainer:
      return container_palette(colors, around);
    case ColorScheme::kSystem:
      break;
  }
  return system_palette(around);
}

// Takes `area` out of each corner, where it stands in the left upper one.
void cut_corners(Region& region, const Rect& area) {
  const Size size = region.size();
  const int right = size.width - area.right();
  const int bottom = size.height - area.bottom();
  for (const int x : {area.x, right}) {
    for (const int y : {area.y, bottom}) region.take_out({x, y, area.width, area.height});
  }
}

}  // namespace

ButtonPalette make_palette(const ButtonColors& colors, const CanvasColors& around) {
  ButtonPalette palette = palette_of_scheme(colors, around);
  palette.mask = around.translated(colors.mask);
  palette.tint = shifted(palette.face, kTintShift,
                         {.soft = colors.soft_bevel, .scale_blue = colors.scaled_tint});
  return palette;
}

Region button_region(int type, Size size) {
  if (type == 13) return Region::ellipse(size);
  Region region = Region::rectangle(size);
  switch (type) {
    case 1:
    case 14:
      cut_corners(region, {0, 0, 1, 1});
      break;
    case 3:
    case 4:
      cut_corners(region, {0, 0, 2, 1});
      cut_corners(region, {0, 1, 1, 1});
      break;
    case 5:
      region.take_out({0, size.height - 1, 1, 1});
      region.take_out({size.width - 1, 0, 1, 1});
      break;
    default:
      break;
  }
  return region;
}

Rect focus_box(int type, Size size) {
  const Rect client{0, 0, size.width, size.height};
  if (type == 14) return client.inset(5).moved(1, 1);
  return client.inset(type >= 7 ? 3 : 4);
}

}  // namespace quillvane
