#include "controls/bitmap_canvas.h"

#include <algorithm>

#include "controls/caption_lines.h"

namespace quillvane {

namespace {

constexpr std::uint32_t kOpaque = 0xFF000000U;
constexpr unsigned kWhole = 255;

// `share` of 255 parts of `over`.
unsigned mixed(unsigned under, unsigned over, unsigned share) {
  return (under * (kWhole - share) + over * share + kWhole / 2) / kWhole;
}

}  // namespace

const CanvasColors& bitmap_colors() {
  static const CanvasColors colors = [] {
    CanvasColors made;
    made.system[13] = 0xD77800;
    made.system[15] = 0xF0F0F0;
    made.system[16] = 0xA0A0A0;
    made.system[18] = 0x000000;
    made.system[20] = 0xFFFFFF;
    made.system[21] = 0x696969;
    made.system[22] = 0xE3E3E3;
    made.container_back = made.system[15];
    made.container_text = made.system[18];
    return made;
  }();
  return colors;
}

BitmapCanvas::BitmapCanvas(Image& target, TextRaster* raster, const CanvasColors& colors)
    : target_(target),
      raster_(raster),
      colors_(colors),
      shape_(Region::rectangle({target.width, target.height})) {}

void BitmapCanvas::set_origin(Point origin) {
  origin_ = origin;
  shape_ = Region::rectangle({target_.width - origin.x, target_.height - origin.y});
}

void BitmapCanvas::fill(const Rect& area, Color color) {
  const Size size = shape_.size();
  const Rect part = area.within({0, 0, size.width, size.height})
                        .within({-origin_.x, -origin_.y, target_.width, target_.height});
  for (int y = part.y; y < part.bottom(); ++y) {
    const Region::Row& row = shape_.rows()[static_cast<std::size_t>(y)];
    const int right = std::min(part.right(), row.right);
    for (int x = std::max(part.x, row.left); x < right; ++x) {
      target_.at(origin_.x + x, origin_.y + y) = kOpaque | color;
    }
  }
}

std::uint32_t* BitmapCanvas::pixel_at(int x, int y) {
  if (!shape_.contains({x, y}) || !target_.contains(origin_.x + x, origin_.y + y)) return nullptr;
  return &target_.at(origin_.x + x, origin_.y + y);
}

void BitmapCanvas::blend(int x, int y, Color color, unsigned share) {
  std::uint32_t* pixel = pixel_at(x, y);
  if (pixel == nullptr || share == 0) return;
  // What is painted on a transparent pixel takes its colour whole.
  const bool is_empty = (*pixel & kOpaque) == 0;
  std::uint32_t result = is_empty ? share << 24U : kOpaque;
  for (unsigned shift = 0; shift < 24; shift += 8) {
    const unsigned over = (color >> shift) & 0xFFU;
    result |= (is_empty ? over : mixed((*pixel >> shift) & 0xFFU, over, share)) << shift;
  }
  *pixel = result;
}

void BitmapCanvas::picture(const Rect& area, const Image& picture) {
  if (picture.empty()) return;
  for (int y = 0; y < area.height; ++y) {
    for (int x = 0; x < area.width; ++x) {
      const std::uint32_t from =
          picture.at(x * picture.width / area.width, y * picture.height / area.height);
      blend(area.x + x, area.y + y, from & 0xFFFFFFU, from >> 24U);
    }
  }
}

void BitmapCanvas::copy(Point to, const Image& picture) {
  for (int y = 0; y < picture.height; ++y) {
    for (int x = 0; x < picture.width; ++x) {
      std::uint32_t* pixel = pixel_at(to.x + x, to.y + y);
      if (pixel != nullptr) *pixel = kOpaque | picture.at(x, y);
    }
  }
}

Size BitmapCanvas::measure(std::string_view caption, const FontStyle& font, int width) {
  if (raster_ == nullptr) return {};
  const auto width_of = [&](std::string_view text) { return raster_->width(text, font); };
  Size size;
  for (const CaptionLine& line : caption_lines(caption, width, width_of)) {
    size.width = std::max(size.width, width_of(line.text));
    size.height += raster_->metrics(font).height;
  }
  return size;
}

void BitmapCanvas::draw_line(Point at, std::string_view text, const FontStyle& font, Color color) {
  const Coverage coverage = raster_->draw(text, font);
  for (int y = 0; y < coverage.height; ++y) {
    for (int x = 0; x < coverage.width; ++x) {
      blend(at.x + x, at.y + y, color,
            coverage.values[static_cast<std::size_t>(y * coverage.width + x)]);
    }
  }
}

void BitmapCanvas::text(const Rect& area, std::string_view caption, const FontStyle& font,
                        Color color) {
  if (raster_ == nullptr) return;
  const auto width_of = [&](std::string_view text) { return raster_->width(text, font); };
  const LineMetrics metrics = raster_->metrics(font);
  const auto lines = caption_lines(caption, area.width, width_of);
  int top = area.y + (area.height - metrics.height * static_cast<int>(lines.size())) / 2;
  for (const CaptionLine& line : lines) {
    const int width = width_of(line.text);
    const int left = area.x + (area.width - width) / 2;
    draw_line({left, top}, line.text, font, color);
    const int below = top + metrics.baseline + 1;
    if (font.underline) fill({left, below, width, 1}, color);
    if (line.access_key && !font.underline) {
      const std::string_view text = line.text;
      const int from = width_of(text.substr(0, *line.access_key));
      // The letter may take several bytes; all of those behind the first begin with the bits 10.
      std::size_t end = *line.access_key + 1;
      while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) ++end;
      fill({left + from, below, width_of(text.substr(0, end)) - from, 1}, color);
    }
    top += metrics.height;
  }
}

}  // namespace quillvane
