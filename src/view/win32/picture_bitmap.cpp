#include "view/win32/picture_bitmap.h"

namespace quillvane {

namespace {

// 0xAARRGGBB in place of 0xAABBGGRR.
std::uint32_t for_windows(std::uint32_t pixel, PictureBitmap::Alpha kind) {
  const std::uint32_t alpha = kind == PictureBitmap::Alpha::kOpaque ? 255 : pixel >> 24U;
  const std::uint32_t share = kind == PictureBitmap::Alpha::kStraight ? alpha : 255;
  const auto part = [&](unsigned shift) { return ((pixel >> shift) & 0xFFU) * share / 255; };
  return (alpha << 24U) | (part(0) << 16U) | (part(8) << 8U) | part(16);
}

}  // namespace

PictureBitmap::PictureBitmap(const Image& picture, Alpha alpha) : dc_(CreateCompatibleDC(nullptr)) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
  info.bmiHeader.biWidth = picture.width;
  info.bmiHeader.biHeight = -picture.height;  // from the top
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  bitmap_.reset(CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (bitmap_ == nullptr) return;
  auto* pixel = static_cast<std::uint32_t*>(bits);
  for (const std::uint32_t from : picture.pixels) *pixel++ = for_windows(from, alpha);
  before_ = SelectObject(dc_.get(), bitmap_.get());
}

PictureBitmap::~PictureBitmap() {
  if (before_ != nullptr) SelectObject(dc_.get(), before_);
}

}  // namespace quillvane
