#include "controls/button_picture.h"

namespace quillvane {

namespace {

constexpr std::uint32_t kAlpha = 0xFF000000U;

unsigned channel(std::uint32_t pixel, unsigned shift) { return (pixel >> shift) & 0xFFU; }

// How bright the eye sees it, of 255.
unsigned brightness(std::uint32_t pixel) {
  return (30 * channel(pixel, 0) + 59 * channel(pixel, 8) + 11 * channel(pixel, 16)) / 100;
}

}  // namespace

Image without_mask(const Image& picture, Color mask) {
  Image result = picture;
  for (std::uint32_t& pixel : result.pixels) {
    if ((pixel & ~kAlpha) == mask) pixel = 0;
  }
  return result;
}

Image in_grey(const Image& picture, Color tint) {
  Image result = picture;
  for (std::uint32_t& pixel : result.pixels) {
    const unsigned grey = brightness(pixel);
    pixel &= kAlpha;
    for (unsigned shift = 0; shift < 24; shift += 8) {
      pixel |= (grey * channel(tint, shift) / 255) << shift;
    }
  }
  return result;
}

Image silhouette(const Image& picture, Color color) {
  Image result = picture;
  for (std::uint32_t& pixel : result.pixels) pixel = (pixel & kAlpha) | color;
  return result;
}

}  // namespace quillvane
