#include "platform/win32/win32_text_raster.h"

#include <windows.h>

#include <memory>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

// A device context in memory with a font of that style.
class FontScope {
 public:
  explicit FontScope(const FontStyle& style)
      : dc_(CreateCompatibleDC(nullptr)), font_(make(style)), before_(SelectObject(dc_, font_)) {}
  ~FontScope() {
    SelectObject(dc_, before_);
    DeleteObject(font_);
    DeleteDC(dc_);
  }
  FontScope(const FontScope&) = delete;
  FontScope& operator=(const FontScope&) = delete;

  [[nodiscard]] HDC dc() const { return dc_; }

 private:
  static HFONT make(const FontStyle& style) {
    const std::wstring name = style.name.empty() ? L"Segoe UI" : widen(style.name);
    return CreateFontW(-style.pixels, 0, 0, 0, style.bold ? FW_BOLD : FW_NORMAL,
                       static_cast<DWORD>(style.italic), FALSE, FALSE, DEFAULT_CHARSET,
                       OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, ANTIALIASED_QUALITY,
                       DEFAULT_PITCH | FF_SWISS, name.c_str());
  }

  HDC dc_;
  HFONT font_;
  HGDIOBJ before_;
};

LineMetrics metrics_of(HDC dc) {
  TEXTMETRICW metrics{};
  GetTextMetricsW(dc, &metrics);
  return {metrics.tmHeight, metrics.tmAscent};
}

int width_of(HDC dc, const std::wstring& text) {
  SIZE size{};
  GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  return size.cx;
}

}  // namespace

LineMetrics Win32TextRaster::metrics(const FontStyle& font) {
  return metrics_of(FontScope(font).dc());
}

int Win32TextRaster::width(std::string_view text, const FontStyle& font) {
  return width_of(FontScope(font).dc(), widen(text));
}

Coverage Win32TextRaster::draw(std::string_view text, const FontStyle& font) {
  const FontScope scope(font);
  const std::wstring wide = widen(text);
  Coverage coverage{width_of(scope.dc(), wide), metrics_of(scope.dc()).height, {}};
  const auto pixels = static_cast<std::size_t>(coverage.width * coverage.height);
  coverage.values.resize(pixels);
  if (pixels == 0) return coverage;
  BITMAPINFO info{};
  info.bmiHeader = {
      sizeof(BITMAPINFOHEADER), coverage.width, -coverage.height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(scope.dc(), &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (bitmap == nullptr) return coverage;
  HGDIOBJ before = SelectObject(scope.dc(), bitmap);
  // White on black: how white a pixel becomes is how much of it is covered.
  SetBkMode(scope.dc(), TRANSPARENT);
  SetTextColor(scope.dc(), RGB(255, 255, 255));
  TextOutW(scope.dc(), 0, 0, wide.c_str(), static_cast<int>(wide.size()));
  GdiFlush();
  for (std::size_t i = 0; i < pixels; ++i) {
    coverage.values[i] = static_cast<const RGBQUAD*>(bits)[i].rgbGreen;
  }
  SelectObject(scope.dc(), before);
  DeleteObject(bitmap);
  return coverage;
}

}  // namespace quillvane
