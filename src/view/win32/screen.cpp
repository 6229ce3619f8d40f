#include "view/win32/screen.h"

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <string>

#include "platform/win32/wide_text.h"
#include "view/win32/look/arrange.h"

namespace quillvane {

namespace {

constexpr int kPointsPerInch = 72;
constexpr double kLeastPoints = 6;
constexpr double kMostPoints = 24;

struct ScriptFaces {
  int character_set;
  const wchar_t* faces[3];
};

// The fonts that Windows brings, those of newer versions first.
constexpr ScriptFaces kScriptFaces[] = {
    {SHIFTJIS_CHARSET, {L"Yu Gothic UI", L"Meiryo UI", L"MS UI Gothic"}},
    {GB2312_CHARSET, {L"Microsoft YaHei UI", L"Microsoft YaHei", L"SimSun"}},
    {CHINESEBIG5_CHARSET, {L"Microsoft JhengHei UI", L"Microsoft JhengHei", L"MingLiU"}},
    {HANGUL_CHARSET, {L"Malgun Gothic", L"Gulim", L"Dotum"}},
    {JOHAB_CHARSET, {L"Malgun Gothic", L"Gulim", L"Dotum"}},
    {ARABIC_CHARSET, {L"Segoe UI", L"Tahoma", L"Arial"}},
    {HEBREW_CHARSET, {L"Segoe UI", L"Tahoma", L"Arial"}},
    {THAI_CHARSET, {L"Leelawadee UI", L"Tahoma", L"Arial"}},
};

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

bool has_face(const wchar_t* face, BYTE character_set = DEFAULT_CHARSET) {
  LOGFONTW wanted{};
  wanted.lfCharSet = character_set;
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

// Empty: no face of this Windows is known to have the letters; the drawing finds one by itself.
std::wstring face_with_letters(const std::wstring& named, BYTE character_set) {
  if (has_face(named.c_str(), character_set)) return named;
  for (const ScriptFaces& script : kScriptFaces) {
    if (script.character_set != character_set) continue;
    for (const wchar_t* face : script.faces) {
      if (has_face(face, character_set)) return face;
    }
  }
  for (const wchar_t* face : kFaces) {
    if (has_face(face, character_set)) return face;
  }
  return {};
}

FontOwner create_font(const std::wstring& face, int height, int weight, BYTE character_set) {
  LOGFONTW font{};
  font.lfHeight = -height;
  font.lfWeight = weight;
  font.lfCharSet = character_set;
  font.lfQuality = CLEARTYPE_QUALITY;
  wcsncpy(font.lfFaceName, face.c_str(), LF_FACESIZE - 1);
  return FontOwner(CreateFontIndirectW(&font));
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
  return create_font(face, MulDiv(points, dpi, kPointsPerInch), weight, DEFAULT_CHARSET);
}

FontOwner make_font(const Font& font, int weight, int dpi) {
  const bool is_known = font.character_set >= 0 && font.character_set <= 255;
  const auto set = static_cast<BYTE>(is_known ? font.character_set : DEFAULT_CHARSET);
  const double points = std::clamp(font.size_points, kLeastPoints, kMostPoints);
  const auto height = static_cast<int>(std::lround(points * dpi / kPointsPerInch));
  return create_font(face_with_letters(widen(font.name), set), height, weight, set);
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
