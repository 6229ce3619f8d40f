#include "controls/shades.h"

#include <algorithm>

namespace quillvane {

namespace {

constexpr int kMost = 255;

struct Channels {
  int red = 0;
  int green = 0;
  int blue = 0;
};

Channels channels_of(Color color) {
  return {static_cast<int>(color & 0xFFU), static_cast<int>((color >> 8U) & 0xFFU),
          static_cast<int>((color >> 16U) & 0xFFU)};
}

Color color_of(const Channels& channels) {
  const auto part = [](int value, unsigned shift) {
    return static_cast<Color>(std::clamp(value, 0, kMost)) << shift;
  };
  return part(channels.red, 0) | part(channels.green, 8) | part(channels.blue, 16);
}

}  // namespace

Color shifted(Color color, int delta, const ShiftRule& rule) {
  constexpr int kBlueScale = 192;
  if (rule.soft) delta /= 2;
  Channels channels = channels_of(color);
  channels.red += delta;
  channels.green += delta;
  channels.blue += rule.scale_blue ? channels.blue * delta / kBlueScale : delta;
  return color_of(channels);
}

Color lightened(Color color, int amount) {
  const auto blend = [amount](int channel) { return channel * (kMost - amount) / kMost + amount; };
  const Channels channels = channels_of(color);
  return color_of({blend(channels.red), blend(channels.green), blend(channels.blue)});
}

}  // namespace quillvane
