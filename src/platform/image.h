// A picture in memory.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quillvane {

// Pixels are 0xAABBGGRR, row by row from the top; the alpha is straight, 0 lets all through.
struct Image {
  Image() = default;
  Image(int columns, int rows, std::uint32_t pixel = 0)
      : width(columns),
        height(rows),
        pixels(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), pixel) {}

  [[nodiscard]] bool empty() const { return pixels.empty(); }
  [[nodiscard]] bool contains(int x, int y) const {
    return x >= 0 && y >= 0 && x < width && y < height;
  }
  // Requires: contains(x, y).
  [[nodiscard]] std::uint32_t& at(int x, int y) { return pixels[index(x, y)]; }
  [[nodiscard]] std::uint32_t at(int x, int y) const { return pixels[index(x, y)]; }

  bool operator==(const Image&) const = default;

  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;

 private:
  [[nodiscard]] std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
           static_cast<std::size_t>(x);
  }
};

}  // namespace quillvane
