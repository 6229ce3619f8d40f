#include "view/win32/look/theme.h"

#include <algorithm>
#include <cmath>

namespace quillvane {

namespace {

constexpr Color kBlack = 0;
constexpr Color kWhite = 0xFFFFFF;
constexpr int kWhole = 256;

unsigned channel(Color color, int number) { return (color >> (8 * number)) & 0xFFU; }

double linear(unsigned value) {
  const double share = value / 255.0;
  return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

// Of 0 (black) to 1 (white), as the eye sees it.
double brightness(Color color) {
  return 0.2126 * linear(channel(color, 0)) + 0.7152 * linear(channel(color, 1)) +
         0.0722 * linear(channel(color, 2));
}

// The suite's colour, darkened until it can be read on the page.
Color link_color(Color suite, Color page) {
  constexpr double kReadable = 4.5;  // ratio of contrast
  constexpr int kStep = 32;
  Color color = suite;
  while (contrast(color, page) < kReadable) color = mixed(color, kBlack, kStep);
  return color;
}

}  // namespace

Color readable_on(Color background) {
  // The ratio of contrast to white is the better one below this brightness.
  constexpr double kTurn = 0.179;
  return brightness(background) < kTurn ? kWhite : kBlack;
}

Color mixed(Color color, Color other, int share) {
  Color result = 0;
  for (int number = 0; number < 3; ++number) {
    const auto one = static_cast<int>(channel(color, number));
    const auto two = static_cast<int>(channel(other, number));
    const int mean = (one * (kWhole - share) + two * share) / kWhole;
    result |= static_cast<Color>(mean) << (8 * number);
  }
  return result;
}

double contrast(Color one, Color other) {
  constexpr double kStray = 0.05;  // light that a screen sends where it is black
  const double first = brightness(one) + kStray;
  const double second = brightness(other) + kStray;
  return std::max(first, second) / std::min(first, second);
}

Color node_text_color(const Theme& theme, Color own) {
  return theme.high_contrast || own == kBlack ? theme.list_text : own;
}

Theme make_theme(Color suite, const SystemColors& system, bool high_contrast) {
  Theme theme;
  theme.high_contrast = high_contrast;
  theme.list = system.window;
  theme.list_text = system.window_text;
  theme.disabled_text = system.gray_text;
  if (high_contrast) {
    theme.title = system.highlight;
    theme.title_text = system.highlight_text;
    theme.page = system.face;
    theme.text = system.face_text;
    theme.border = system.face_text;
    theme.box_edge = system.window_text;
    theme.link = system.hot_light;
    theme.button = system.face;
    theme.button_over = system.face;
    theme.button_pressed = system.face;
    theme.main_button = system.face;
    theme.main_button_text = system.face_text;
    theme.focus = system.highlight;
    return theme;
  }
  theme.title = suite;
  theme.title_text = readable_on(suite);
  theme.page = 0xF9F6F4;
  theme.text = 0x2B2320;
  theme.border = 0xD8CFC8;
  theme.box_edge = 0x8A817A;
  theme.link = link_color(suite, theme.page);
  theme.button = kWhite;
  theme.button_over = mixed(kWhite, suite, 28);
  theme.button_pressed = mixed(kWhite, suite, 64);
  theme.disabled_text = 0xA39B96;
  theme.main_button = suite;
  theme.main_button_text = readable_on(suite);
  theme.focus = mixed(suite, kBlack, 64);
  return theme;
}

}  // namespace quillvane
