#include "view/win32/screen.h"

#include <cwchar>

#include "view/win32/look/arrange.h"

namespace quillvane {

namespace {

constexpr const wchar_t* kFaces[] = {L"Segoe UI", L"Tahoma", L"Verdana"};

template <typename Function>
Function user32_call(const char* name) {
  return reinterpret_cast<Function>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), name)));
}

int dpi_of_main_screen() {
  const HDC dc = GetDC(nullptr);
  const int dpi = GetDeviceCaps(dc, LOGPIXELSY);
  ReleaseDC(nullptr, dc);
  return dpi > 0 ? dpi : kPlainDpi;
}

int CALLBACK found_face(const LOGFONTW* /*font*/, const TEXTMETRICW* /*metric*/, DWORD /*type*/,
                        LPARAM found) {
  *reinterpret_cast<bool*>(found) = true;
  return 0;
}

bool has_face(const wchar_t* face) {
  LOGFONTW wanted{};
  wanted.lfCharSet = DEFAULT_CHARSET;
  wcsncpy(wanted.lfFaceName, face, LF_FACESIZE - 1);
  bool found = false;
  const HDC dc = GetDC(nullptr);
  EnumFontFamiliesExW(dc, &wanted, found_face, reinterpret_cast<LPARAM>(&found), 0);
  ReleaseDC(nullptr, dc);
  return found;
}

const wchar_t* face_of_this_windows() {
  for (const wchar_t* face : kFaces) {
    if (has_face(face)) return face;
  }
  return L"MS Shell Dlg 2";
}

}  // namespace

int dpi_of(HWND window) {
  using GetDpi = UINT(WINAPI*)(HWND);
  static const auto get_dpi = user32_call<GetDpi>("GetDpiForWindow");  // Windows 10
  if (window != nullptr && get_dpi != nullptr) {
    const UINT dpi = get_dpi(window);
    if (dpi != 0) return static_cast<int>(dpi);
  }
  return dpi_of_main_screen();
}

RECT work_area(HWND window) {
  MONITORINFO screen{};
  screen.cbSize = sizeof(screen);
  GetMonitorInfoW(MonitorFromWindow(window, MONITOR_DEFAULTTOPRIMARY), &screen);
  return screen.rcWork;
}

SystemColors system_colors() {
  return {.window = GetSysColor(COLOR_WINDOW),
          .window_text = GetSysColor(COLOR_WINDOWTEXT),
          .face = GetSysColor(COLOR_BTNFACE),
          .face_text = GetSysColor(COLOR_BTNTEXT),
          .gray_text = GetSysColor(COLOR_GRAYTEXT),
          .highlight = GetSysColor(COLOR_HIGHLIGHT),
          .highlight_text = GetSysColor(COLOR_HIGHLIGHTTEXT),
          .hot_light = GetSysColor(COLOR_HOTLIGHT)};
}

bool high_contrast() {
  HIGHCONTRASTW answer{};
  answer.cbSize = sizeof(answer);
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(answer), &answer, 0) != FALSE &&
         (answer.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

FontOwner make_font(int points, int weight, int dpi) {
  static const wchar_t* const face = face_of_this_windows();
  constexpr int kPointsPerInch = 72;
  LOGFONTW font{};
  font.lfHeight = -MulDiv(points, dpi, kPointsPerInch);
  font.lfWeight = weight;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = CLEARTYPE_QUALITY;
  wcsncpy(font.lfFaceName, face, LF_FACESIZE - 1);
  return FontOwner(CreateFontIndirectW(&font));
}

int text_height(HFONT font) {
  const HDC dc = GetDC(nullptr);
  TEXTMETRICW metric{};
  {
    const Selected selected(dc, font);
    GetTextMetricsW(dc, &metric);
  }
  ReleaseDC(nullptr, dc);
  return metric.tmHeight;
}

int text_width(HFONT font, const wchar_t* text) {
  const HDC dc = GetDC(nullptr);
  SIZE size{};
  {
    const Selected selected(dc, font);
    GetTextExtentPoint32W(dc, text, static_cast<int>(wcslen(text)), &size);
  }
  ReleaseDC(nullptr, dc);
  return size.cx;
}

}  // namespace quillvane
