// What a chameleonButton looks like, apart from its captions and pictures.
#pragma once

#include "controls/canvas.h"
#include "controls/shades.h"

namespace quillvane {

// The stored numbers of the looks.
inline constexpr int kFirstButtonType = 1;
inline constexpr int kLastButtonType = 14;

enum class ColorScheme { kSystem = 1, kCustom = 2, kFixed = 3, kContainer = 4 };
inline constexpr int kFirstColorScheme = 1;
inline constexpr int kLastColorScheme = 4;

// Numbers of the system's colours, as stored colours name them.
inline constexpr Color kButtonFace = 0x80000000U | 15U;
inline constexpr Color kButtonText = 0x80000000U | 18U;

// The colours that a button's own ones stand for, as its scheme has it.
struct ButtonColors {
  ColorScheme scheme = ColorScheme::kSystem;
  Color back = kButtonFace;
  Color back_over = kButtonFace;
  Color fore = kButtonText;
  Color fore_over = kButtonText;
  Color mask = 0xC0C0C0;
  bool soft_bevel = false;   // shifts go half as far
  bool scaled_tint = false;  // of type 3: the tint's blue moves by its share
};

// The colours that it is painted with.
struct ButtonPalette {
  Color face = 0;
  Color face_over = 0;
  Color light = 0;      // soft upper edge
  Color highlight = 0;  // hard upper edge
  Color shadow = 0;     // soft lower edge
  Color dark = 0;       // hard lower edge
  Color text = 0;
  Color text_over = 0;
  Color select = 0;
  Color select_soft = 0;
  Color mask = 0;
  Color tint = 0;  // a brighter face
};

[[nodiscard]] ButtonPalette make_palette(const ButtonColors& colors, const CanvasColors& around);

// The shape of a button of this type.
[[nodiscard]] Region button_region(int type, Size size);

// Where a button of this type shows that it has the focus.
[[nodiscard]] Rect focus_box(int type, Size size);

}  // namespace quillvane
