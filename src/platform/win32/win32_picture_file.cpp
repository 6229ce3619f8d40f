#include "platform/win32/win32_picture_file.h"

#include "platform/win32/gdiplus_api.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

// Of image/png.
constexpr CLSID kPngEncoder = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

class GdiplusScope {
 public:
  GdiplusScope() {
    const Gdiplus::GdiplusStartupInput input;
    started_ = Gdiplus::GdiplusStartup(&token_, &input, nullptr) == Gdiplus::Ok;
  }
  ~GdiplusScope() {
    if (started_) Gdiplus::GdiplusShutdown(token_);
  }
  GdiplusScope(const GdiplusScope&) = delete;
  GdiplusScope& operator=(const GdiplusScope&) = delete;

  [[nodiscard]] bool started() const { return started_; }

 private:
  ULONG_PTR token_ = 0;
  bool started_ = false;
};

// 0xAARRGGBB, as the library has it.
std::vector<std::uint32_t> swapped(const Image& picture) {
  std::vector<std::uint32_t> pixels;
  pixels.reserve(picture.pixels.size());
  for (const std::uint32_t pixel : picture.pixels) {
    pixels.push_back((pixel & 0xFF00FF00U) | (pixel & 0xFFU) << 16U | (pixel >> 16U & 0xFFU));
  }
  return pixels;
}

}  // namespace

std::optional<std::string> Win32PictureFile::write_png(const std::string& path,
                                                       const Image& picture) {
  const GdiplusScope library;
  if (!library.started()) return "cannot be made: the drawing library does not start";
  std::vector<std::uint32_t> pixels = swapped(picture);
  Gdiplus::Bitmap bitmap(picture.width, picture.height, 4 * picture.width, PixelFormat32bppARGB,
                         reinterpret_cast<BYTE*>(pixels.data()));
  const Gdiplus::Status status = bitmap.Save(widen(path).c_str(), &kPngEncoder, nullptr);
  if (status == Gdiplus::Ok) return std::nullopt;
  return "cannot be written";
}

}  // namespace quillvane
