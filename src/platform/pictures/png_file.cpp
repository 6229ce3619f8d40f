#include "platform/pictures/png_file.h"

#include <png.h>
#include <stdio.h>

#include <cerrno>
#include <fstream>
#include <system_error>
#include <vector>

namespace quillvane {

namespace {

// Each pixel's bytes in the order of the file, whatever the machine's own is.
std::vector<png_byte> bytes_of(const Image& picture) {
  std::vector<png_byte> bytes;
  bytes.reserve(picture.pixels.size() * 4);
  for (const std::uint32_t pixel : picture.pixels) {
    for (int shift = 0; shift < 32; shift += 8) {
      bytes.push_back(static_cast<png_byte>((pixel >> shift) & 0xFFU));
    }
  }
  return bytes;
}

}  // namespace

std::optional<std::string> PngFile::write_png(const std::string& path, const Image& picture) {
  png_image image = {};
  image.version = PNG_IMAGE_VERSION;
  image.width = static_cast<png_uint_32>(picture.width);
  image.height = static_cast<png_uint_32>(picture.height);
  image.format = PNG_FORMAT_RGBA;
  const std::vector<png_byte> bytes = bytes_of(picture);
  // Into memory first: a picture that cannot be made leaves the file that is there alone.
  png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
  std::vector<char> content(size);
  if (png_image_write_to_memory(&image, content.data(), &size, 0, bytes.data(), 0, nullptr) == 0) {
    return std::string("cannot be made: ") + image.message;
  }
  errno = 0;
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  if (file) file.write(content.data(), static_cast<std::streamsize>(size)).flush();
  if (file) return std::nullopt;
  if (errno == 0) return "cannot be written";
  return "cannot be written: " + std::generic_category().message(errno);
}

}  // namespace quillvane
