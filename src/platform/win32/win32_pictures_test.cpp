// Text and PNG files by Windows.
#include <gtest/gtest.h>

#include "platform/win32/gdiplus_api.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_picture_file.h"
#include "platform/win32/win32_text_raster.h"
#include "tests/windows/scratch_folder.h"

namespace quillvane {
namespace {

// 0xAARRGGBB of each pixel; nothing when it is no picture.
std::vector<std::uint32_t> read_png(const std::string& path) {
  ULONG_PTR token = 0;
  const Gdiplus::GdiplusStartupInput input;
  Gdiplus::GdiplusStartup(&token, &input, nullptr);
  std::vector<std::uint32_t> pixels;
  {
    Gdiplus::Bitmap bitmap(widen(path).c_str());
    for (UINT y = 0; y < bitmap.GetHeight(); ++y) {
      for (UINT x = 0; x < bitmap.GetWidth(); ++x) {
        Gdiplus::Color color;
        bitmap.GetPixel(static_cast<INT>(x), static_cast<INT>(y), &color);
        pixels.push_back(color.GetValue());
      }
    }
  }
  Gdiplus::GdiplusShutdown(token);
  return pixels;
}

TEST(Win32PictureFile, KeepsColoursAndTheirAlphaAsTheyAre) {
  const ScratchFolder folder;
  const std::string path = folder.path() + "\\a.png";
  Image picture(2, 1);
  picture.at(0, 0) = 0xFF112233;
  picture.at(1, 0) = 0x80FFC080;
  EXPECT_EQ(Win32PictureFile().write_png(path, picture), std::nullopt);
  EXPECT_EQ(read_png(path), (std::vector<std::uint32_t>{0xFF332211, 0x8080C0FF}));
}

TEST(Win32PictureFile, TellsThatItCannotBeWritten) {
  const ScratchFolder folder;
  EXPECT_EQ(Win32PictureFile().write_png(folder.path() + "\\no\\a.png", Image(1, 1)),
            "cannot be written");
}

TEST(Win32TextRaster, CoversWhatTheLettersCover) {
  Win32TextRaster raster;
  EXPECT_EQ(raster.problem(), std::nullopt);
  const FontStyle font{.pixels = 20};
  const Coverage coverage = raster.draw("Il", font);
  EXPECT_EQ(coverage.width, raster.width("Il", font));
  EXPECT_EQ(coverage.height, raster.metrics(font).height);
  ASSERT_EQ(coverage.values.size(), static_cast<std::size_t>(coverage.width * coverage.height));
  const int baseline = raster.metrics(font).baseline;
  int above = 0;
  int below = 0;
  for (int y = 0; y < coverage.height; ++y) {
    for (int x = 0; x < coverage.width; ++x) {
      (y < baseline ? above : below) +=
          coverage.values[static_cast<std::size_t>(y * coverage.width + x)];
    }
  }
  EXPECT_GT(above, 0);
  EXPECT_EQ(below, 0);
  EXPECT_EQ(raster.width("", {}), 0);
  EXPECT_TRUE(raster.draw("", {}).values.empty());
}

}  // namespace
}  // namespace quillvane
