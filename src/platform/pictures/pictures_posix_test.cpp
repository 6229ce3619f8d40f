// Text and PNG files by the libraries.
#include <gtest/gtest.h>
#include <png.h>

#include "platform/pictures/free_type_raster.h"
#include "platform/pictures/png_file.h"
#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

// What is in the file, in bytes of red, green, blue and alpha; nothing when it is no picture.
std::vector<png_byte> read_png(const std::string& path, int width, int height) {
  png_image image = {};
  image.version = PNG_IMAGE_VERSION;
  if (png_image_begin_read_from_file(&image, path.c_str()) == 0) return {};
  EXPECT_EQ(image.width, static_cast<png_uint_32>(width));
  EXPECT_EQ(image.height, static_cast<png_uint_32>(height));
  image.format = PNG_FORMAT_RGBA;
  std::vector<png_byte> bytes(PNG_IMAGE_SIZE(image));
  png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr);
  return bytes;
}

TEST(PngFile, KeepsColoursAndTheirAlphaAsTheyAre) {
  const TempFolder folder;
  const std::string path = folder.path() + "/a.png";
  Image picture(2, 1);
  picture.at(0, 0) = 0xFF112233;
  picture.at(1, 0) = 0x01FFC080;
  EXPECT_EQ(PngFile().write_png(path, picture), std::nullopt);
  EXPECT_EQ(read_png(path, 2, 1),
            (std::vector<png_byte>{0x33, 0x22, 0x11, 0xFF, 0x80, 0xC0, 0xFF, 0x01}));
}

TEST(PngFile, ReplacesWhatIsThere) {
  const TempFolder folder;
  const std::string path = folder.path() + "/a.png";
  EXPECT_EQ(PngFile().write_png(path, Image(90, 90, 0xFF010203)), std::nullopt);
  EXPECT_EQ(PngFile().write_png(path, Image(1, 1, 0xFF010203)), std::nullopt);
  EXPECT_EQ(read_png(path, 1, 1).size(), 4U);
}

TEST(PngFile, TellsWhyItCannotBeWritten) {
  const TempFolder folder;
  EXPECT_EQ(PngFile().write_png(folder.path() + "/no/a.png", Image(1, 1)),
            "cannot be written: No such file or directory");
  EXPECT_EQ(PngFile().write_png(folder.path(), Image(1, 1)), "cannot be written: Is a directory");
}

TEST(FreeTypeRaster, CoversWhatTheLettersCover) {
  FreeTypeRaster raster;
  ASSERT_EQ(raster.problem(), std::nullopt);
  const FontStyle font{.pixels = 20};
  const Coverage coverage = raster.draw("Il", font);
  EXPECT_EQ(coverage.width, raster.width("Il", font));
  EXPECT_EQ(coverage.height, raster.metrics(font).height);
  ASSERT_EQ(coverage.values.size(), static_cast<std::size_t>(coverage.width * coverage.height));
  // Both stand on the baseline, and nothing lies below it.
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
}

TEST(FreeTypeRaster, WiderStylesAreWider) {
  FreeTypeRaster raster;
  EXPECT_EQ(raster.width("", {}), 0);
  EXPECT_GT(raster.width("Scan", {.pixels = 24}), raster.width("Scan", {.pixels = 12}));
  EXPECT_GT(raster.width("Scan", {.bold = true}), raster.width("Scan", {}));
  EXPECT_GT(raster.width("\xC3\x84", {}), 0);
  EXPECT_GT(raster.width("\xFF", {}), 0);  // no UTF-8: a box or a question mark
}

TEST(FreeTypeRaster, TakesTheFirstFontThatIsThere) {
  const std::vector<FontFiles>& usual = usual_fonts();
  std::vector<FontFiles> fonts = usual;
  fonts.insert(fonts.begin(), {"/nowhere/none.ttf", "/nowhere/none.ttf"});
  FreeTypeRaster raster(fonts);
  FreeTypeRaster other;
  EXPECT_EQ(raster.width("Scan", {}), other.width("Scan", {}));
}

TEST(FreeTypeRaster, WithoutAFontItSaysSo) {
  FreeTypeRaster raster(std::vector<FontFiles>{{"/nowhere/none.ttf", "/nowhere/none.ttf"}});
  ASSERT_TRUE(raster.problem());
  EXPECT_TRUE(raster.problem()->starts_with("fonts: "));
  EXPECT_EQ(raster.width("Scan", {}), 0);
  EXPECT_EQ(raster.draw("Scan", {}).values.size(), 0U);
}

}  // namespace
}  // namespace quillvane
