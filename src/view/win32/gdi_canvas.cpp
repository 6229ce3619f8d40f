#include "view/win32/gdi_canvas.h"

#include <vector>

#include "platform/win32/wide_text.h"
#include "view/win32/picture_bitmap.h"

namespace quillvane {

namespace {

constexpr UINT kCaption = DT_CENTER | DT_VCENTER | DT_WORDBREAK;

RECT rect_of(const Rect& box) { return {box.x, box.y, box.right(), box.bottom()}; }

}  // namespace

CanvasColors system_canvas_colors(Color container_back, Color container_text) {
  CanvasColors colors;
  for (int number = 0; number < CanvasColors::kSystemColors; ++number) {
    colors.system[static_cast<std::size_t>(number)] = GetSysColor(number);
  }
  colors.container_back = container_back;
  colors.container_text = container_text;
  return colors;
}

HRGN make_region(const Region& shape) {
  std::vector<RECT> rows;
  int y = 0;
  for (const Region::Row& row : shape.rows()) {
    // Rows alike are one box.
    if (!rows.empty() && rows.back().left == row.left && rows.back().right == row.right &&
        rows.back().bottom == y) {
      ++rows.back().bottom;
    } else if (row.left < row.right) {
      rows.push_back({row.left, y, row.right, y + 1});
    }
    ++y;
  }
  const std::size_t bytes = rows.size() * sizeof(RECT);
  std::vector<char> data(sizeof(RGNDATAHEADER) + bytes);
  auto* header = reinterpret_cast<RGNDATAHEADER*>(data.data());
  header->dwSize = sizeof(RGNDATAHEADER);
  header->iType = RDH_RECTANGLES;
  header->nCount = static_cast<DWORD>(rows.size());
  header->nRgnSize = static_cast<DWORD>(bytes);
  const Size size = shape.size();
  header->rcBound = {0, 0, size.width, size.height};
  std::copy_n(reinterpret_cast<const char*>(rows.data()), bytes,
              data.data() + sizeof(RGNDATAHEADER));
  return ExtCreateRegion(nullptr, static_cast<DWORD>(data.size()),
                         reinterpret_cast<const RGNDATA*>(data.data()));
}

GdiCanvas::GdiCanvas(HDC dc, const CanvasColors& colors)
    : dc_(dc), saved_(SaveDC(dc)), colors_(colors) {
  SetBkMode(dc_, TRANSPARENT);
}

// Takes the clip and the font out of the device context again.
GdiCanvas::~GdiCanvas() { RestoreDC(dc_, saved_); }

void GdiCanvas::clip(const Region& shape) {
  HRGN region = make_region(shape);
  POINT origin{};
  GetViewportOrgEx(dc_, &origin);
  OffsetRgn(region, origin.x, origin.y);  // clips are counted from the surface's own corner
  SelectClipRgn(dc_, region);
  DeleteObject(region);
}

void GdiCanvas::fill(const Rect& area, Color color) {
  if (area.empty()) return;
  const RECT rect = rect_of(area);
  // An opaque text without letters: it needs no brush.
  SetBkColor(dc_, color);
  ExtTextOutW(dc_, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
}

void GdiCanvas::picture(const Rect& area, const Image& picture) {
  if (picture.empty() || area.empty()) return;
  const PictureBitmap from(picture, PictureBitmap::Alpha::kStraight);
  constexpr BLENDFUNCTION kByItsAlpha = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  GdiAlphaBlend(dc_, area.x, area.y, area.width, area.height, from.dc(), 0, 0, picture.width,
                picture.height, kByItsAlpha);
}

void GdiCanvas::copy(Point to, const Image& picture) {
  if (picture.empty()) return;
  const PictureBitmap from(picture, PictureBitmap::Alpha::kOpaque);
  BitBlt(dc_, to.x, to.y, picture.width, picture.height, from.dc(), 0, 0, SRCCOPY);
}

void GdiCanvas::use(const FontStyle& font) {
  if (style_ == font) return;
  const std::wstring name = font.name.empty() ? L"Segoe UI" : widen(font.name);
  FontOwner made(CreateFontW(-font.pixels, 0, 0, 0, font.bold ? FW_BOLD : FW_NORMAL,
                             static_cast<DWORD>(font.italic), static_cast<DWORD>(font.underline),
                             FALSE, DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                             CLEARTYPE_QUALITY, DEFAULT_PITCH | FF_SWISS, name.c_str()));
  SelectObject(dc_, made.get());
  font_ = std::move(made);
  style_ = font;
}

Size GdiCanvas::measure(std::string_view caption, const FontStyle& font, int width) {
  if (caption.empty()) return {};
  use(font);
  RECT rect{0, 0, width, 0};
  const std::wstring text = widen(caption);
  DrawTextW(dc_, text.c_str(), static_cast<int>(text.size()), &rect, DT_CALCRECT | DT_WORDBREAK);
  return {rect.right, rect.bottom};
}

void GdiCanvas::text(const Rect& area, std::string_view caption, const FontStyle& font,
                     Color color) {
  if (caption.empty()) return;
  // Several lines are put in the middle here, since Windows does that with one alone.
  const Size size = measure(caption, font, area.width);
  RECT rect = rect_of(centred({area.width, size.height}, area));
  SetTextColor(dc_, color);
  const std::wstring text = widen(caption);
  DrawTextW(dc_, text.c_str(), static_cast<int>(text.size()), &rect, kCaption | DT_NOCLIP);
}

}  // namespace quillvane
