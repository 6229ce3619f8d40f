#include "platform/win32/win32_locale.h"

#include <windows.h>

#include <string>

#include "platform/win32/wide_text.h"

namespace quillvane {

std::optional<std::string> Win32Locale::text(int type) const {
  const auto what = static_cast<LCTYPE>(type);
  const int length = GetLocaleInfoW(LOCALE_USER_DEFAULT, what, nullptr, 0);
  if (length <= 0) return std::nullopt;
  std::wstring text(static_cast<std::size_t>(length), L'\0');
  const int written = GetLocaleInfoW(LOCALE_USER_DEFAULT, what, text.data(), length);
  if (written <= 0) return std::nullopt;
  text.resize(static_cast<std::size_t>(written) - 1);
  return narrow(text);
}

}  // namespace quillvane
