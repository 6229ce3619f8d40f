#include "controls/shadow_picture.h"

#include <algorithm>
#include <cmath>

namespace quillvane {

namespace {

constexpr double kPercent = 100;
constexpr double kOpaque = 255;

std::uint32_t shadow_pixel(double share, Color color) {
  const auto alpha = static_cast<std::uint32_t>(std::lround(kOpaque * share));
  return alpha == 0 ? 0 : alpha << 24U | color;
}

}  // namespace

double shadow_share(double distance, double curve) {
  const double k = -2 * curve;
  if (k == -1) return 1 - distance;
  const double t = (k + std::sqrt(4 * (k + 1) * distance + k * k)) / (2 * (k + 1));
  return 2 * curve * t * (1 - t) + (1 - t) * (1 - t);
}

Image shadow_cell(const ShadowLook& look) {
  const int n = look.size;
  Image cell(n, n);
  for (int y = 0; y < n; ++y) {
    for (int x = 0; x < n; ++x) {
      const double across = static_cast<double>(x) / n;
      const double down = static_cast<double>(y) / n;
      const double distance = std::clamp(std::hypot(across, down), 0.0, 1.0);
      const double share = shadow_share(distance, look.curve / kPercent) * look.opacity / kPercent;
      cell.at(x, y) = shadow_pixel(std::clamp(share, 0.0, 1.0), look.color);
    }
  }
  return cell;
}

Image shadow_picture(Size window, const ShadowLook& look) {
  const int n = look.size;
  const Image cell = shadow_cell(look);
  Image shadow(window.width + 2 * n, window.height + 2 * n);
  const int right = n + window.width;
  const int bottom = n + window.height;
  for (int out = 0; out < n; ++out) {
    // The corners, mirrored so that the cell's origin lies inward.
    for (int side = 0; side < n; ++side) {
      const std::uint32_t pixel = cell.at(side, out);
      shadow.at(n - 1 - side, n - 1 - out) = pixel;
      shadow.at(right + side, n - 1 - out) = pixel;
      shadow.at(n - 1 - side, bottom + out) = pixel;
      shadow.at(right + side, bottom + out) = pixel;
    }
    // The edges: one row of the cell, stretched.
    const std::uint32_t pixel = cell.at(out, 0);
    for (int x = n; x < right; ++x) {
      shadow.at(x, n - 1 - out) = pixel;
      shadow.at(x, bottom + out) = pixel;
    }
    for (int y = n; y < bottom; ++y) {
      shadow.at(n - 1 - out, y) = pixel;
      shadow.at(right + out, y) = pixel;
    }
  }
  return shadow;
}

Image premultiplied(const Image& picture) {
  Image result = picture;
  for (std::uint32_t& pixel : result.pixels) {
    const std::uint32_t alpha = pixel >> 24U;
    std::uint32_t part = alpha << 24U;
    for (unsigned shift = 0; shift < 24; shift += 8) {
      part |= (((pixel >> shift) & 0xFFU) * alpha / 255) << shift;
    }
    pixel = part;
  }
  return result;
}

}  // namespace quillvane
