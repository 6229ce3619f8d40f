// What Windows draws is what the bitmap canvas draws, but for letters.
#include "view/win32/gdi_canvas.h"

#include <gtest/gtest.h>

#include <cstring>

#include "controls/bitmap_canvas.h"
#include "controls/button_painter.h"

namespace quillvane {
namespace {

// A device context with a bitmap of that size, whose pixels can be read.
class Surface {
 public:
  Surface(int width, int height)
      : width_(width), height_(height), dc_(CreateCompatibleDC(nullptr)) {
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
    before_ = SelectObject(dc_, bitmap_);
  }
  ~Surface() {
    SelectObject(dc_, before_);
    DeleteObject(bitmap_);
    DeleteDC(dc_);
  }
  Surface(const Surface&) = delete;
  Surface& operator=(const Surface&) = delete;

  [[nodiscard]] HDC dc() const { return dc_; }
  // 0xBBGGRR, row by row.
  [[nodiscard]] Image pixels() const {
    GdiFlush();
    Image image(width_, height_);
    for (std::size_t i = 0; i < image.pixels.size(); ++i) {
      const RGBQUAD& pixel = static_cast<const RGBQUAD*>(bits_)[i];
      image.pixels[i] = RGB(pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue);
    }
    return image;
  }

 private:
  int width_;
  int height_;
  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
  void* bits_ = nullptr;
};

constexpr Size kSize = {61, 27};

Image by_windows(const ButtonPaint& button) {
  const Surface surface(kSize.width, kSize.height);
  GdiCanvas canvas(surface.dc(), bitmap_colors());
  paint_button(canvas, button);
  return surface.pixels();
}

Image by_bitmap(const ButtonPaint& button) {
  Image image(kSize.width, kSize.height);
  BitmapCanvas canvas(image, nullptr);
  paint_button(canvas, button);
  for (auto& pixel : image.pixels) pixel &= 0xFFFFFFU;
  return image;
}

std::vector<ButtonPaint> all_states(int type, ColorScheme scheme) {
  std::vector<ButtonPaint> buttons;
  for (int state = 0; state < 4; ++state) {
    for (int standing = 0; standing < 4; ++standing) {
      ButtonPaint button;
      button.type = type;
      button.size = kSize;
      button.colors = {.scheme = scheme,
                       .back = 0x90A0B0,
                       .back_over = 0x80C0FF,
                       .fore = 0x203040,
                       .fore_over = 0x604020};
      button.hovering = state == 1 || state == 2;
      button.pressed = state == 2;
      button.enabled = state != 3;
      button.focused = (standing & 1) != 0;
      button.is_default = (standing & 2) != 0;
      buttons.push_back(button);
    }
  }
  return buttons;
}

TEST(GdiCanvas, DrawsEachButtonAsTheBitmapDoes) {
  for (int type = kFirstButtonType; type <= kLastButtonType; ++type) {
    for (const auto scheme : {ColorScheme::kSystem, ColorScheme::kCustom, ColorScheme::kFixed,
                              ColorScheme::kContainer}) {
      int number = 0;
      for (const ButtonPaint& button : all_states(type, scheme)) {
        EXPECT_TRUE(by_windows(button) == by_bitmap(button))
            << "type " << type << ", scheme " << static_cast<int>(scheme) << ", state " << number++;
      }
    }
  }
}

TEST(GdiCanvas, DrawsPicturesAsTheBitmapDoes) {
  Image picture(4, 4, 0xFF123456);
  picture.at(1, 1) = 0xFFC0C0C0;  // masked
  picture.at(2, 2) = 0xFFFEDCBA;
  const Image ground(kSize.width, kSize.height, 0xFF8899AA);
  for (const int type : {3, 8, 11}) {
    for (ButtonPaint button : all_states(type, ColorScheme::kCustom)) {
      button.picture = &picture;
      button.background = &ground;
      EXPECT_TRUE(by_windows(button) == by_bitmap(button)) << type;
      button.use_greyscale = true;
      EXPECT_TRUE(by_windows(button) == by_bitmap(button)) << type;
    }
  }
}

TEST(GdiCanvas, ARegionHasThePixelsOfTheShape) {
  for (const int type : {1, 3, 5, 8, 13}) {
    const Region shape = button_region(type, kSize);
    HRGN region = make_region(shape);
    ASSERT_NE(region, nullptr);
    for (int y = -1; y <= kSize.height; ++y) {
      for (int x = -1; x <= kSize.width; ++x) {
        EXPECT_EQ(PtInRegion(region, x, y) != 0, shape.contains({x, y})) << type;
      }
    }
    DeleteObject(region);
  }
}

TEST(GdiCanvas, WritesACaptionInTheMiddle) {
  const Surface surface(kSize.width, kSize.height);
  GdiCanvas canvas(surface.dc(), bitmap_colors());
  const Size size = canvas.measure("Scan", {}, kSize.width);
  EXPECT_GT(size.width, 0);
  EXPECT_LT(size.width, kSize.width);
  canvas.text({0, 0, kSize.width, kSize.height}, "Scan", {}, 0xFFFFFF);
  const Image image = surface.pixels();
  Rect inked{kSize.width, kSize.height, 0, 0};
  int right = 0;
  for (int y = 0; y < kSize.height; ++y) {
    for (int x = 0; x < kSize.width; ++x) {
      if (image.at(x, y) == 0) continue;
      inked.x = std::min(inked.x, x);
      right = std::max(right, x + 1);
    }
  }
  // As far from the left as from the right, but for what the letters themselves leave.
  EXPECT_NEAR(inked.x, kSize.width - right, 3);
}

TEST(GdiCanvas, LeavesNoObjectOfWindowsBehind) {
  const Surface surface(kSize.width, kSize.height);
  const Image picture(4, 4, 0xFF123456);
  const auto paint = [&] {
    GdiCanvas canvas(surface.dc(), bitmap_colors());
    for (int type = kFirstButtonType; type <= kLastButtonType; ++type) {
      ButtonPaint button{.type = type, .size = kSize, .caption = "Scan", .picture = &picture};
      paint_button(canvas, button);
    }
  };
  paint();
  const DWORD before = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
  for (int i = 0; i < 200; ++i) paint();
  EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS), before);
}

}  // namespace
}  // namespace quillvane
