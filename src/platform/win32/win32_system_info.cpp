#include "platform/win32/win32_system_info.h"

#include <windows.h>

#include <optional>

#include "platform/win32/wide_text.h"
#include "platform/win32/win32_code_page.h"
#include "platform/win32/windows_time.h"

namespace quillvane {

namespace {

// Windows' own bound for any text of the user's settings.
constexpr int kLocaleTextLimit = 80;

std::string locale_text(LCTYPE what) {
  wchar_t text[kLocaleTextLimit];
  const int length = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, what, text, kLocaleTextLimit);
  return length > 0 ? narrow({text, static_cast<std::size_t>(length - 1)}) : std::string();
}

std::optional<DWORD> locale_number(const wchar_t* locale, LCTYPE what) {
  DWORD number = 0;
  const int length =
      GetLocaleInfoEx(locale, what | LOCALE_RETURN_NUMBER, reinterpret_cast<wchar_t*>(&number),
                      sizeof(number) / sizeof(wchar_t));
  return length > 0 ? std::optional(number) : std::nullopt;
}

SYSTEMTIME system_time(const DateTime& date) {
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(date.year);
  time.wMonth = static_cast<WORD>(date.month);
  time.wDay = static_cast<WORD>(date.day);
  time.wHour = static_cast<WORD>(date.hour);
  time.wMinute = static_cast<WORD>(date.minute);
  time.wSecond = static_cast<WORD>(date.second);
  return time;
}

bool is_midnight(const DateTime& date) {
  return date.hour == 0 && date.minute == 0 && date.second == 0;
}

}  // namespace

std::string Win32SystemInfo::program_folder() const {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const auto room = static_cast<DWORD>(path.size());
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), room);
    if (length < room) {
      path.resize(length);
      break;
    }
    path.resize(path.size() * 2);
  }
  const std::size_t name = path.find_last_of(L'\\');
  return name == std::wstring::npos ? std::string()
                                    : narrow(std::wstring_view(path).substr(0, name));
}

std::string Win32SystemInfo::system_folder() const {
  wchar_t path[MAX_PATH];
  const UINT length = GetSystemDirectoryW(path, MAX_PATH);
  return length < MAX_PATH ? narrow({path, length}) : std::string();
}

bool Win32SystemInfo::is_wow64() const {
  BOOL is_wow64 = FALSE;
  return IsWow64Process(GetCurrentProcess(), &is_wow64) && is_wow64;
}

int Win32SystemInfo::ansi_code_page() const {
  const UINT own = GetACP();
  if (own != CP_UTF8) return static_cast<int>(own);
  // That is what the program's manifest asks for, not what the system's language uses.
  const auto page = locale_number(LOCALE_NAME_SYSTEM_DEFAULT, LOCALE_IDEFAULTANSICODEPAGE);
  // A language without a page of its own has 0 there.
  return static_cast<int>(page.value_or(0) == 0 ? own : *page);
}

const CodePage* Win32SystemInfo::code_page(int number) const { return win32_code_page(number); }

std::string Win32SystemInfo::decimal_separator() const {
  const std::string separator = locale_text(LOCALE_SDECIMAL);
  return separator.empty() ? "." : separator;
}

DateOrder Win32SystemInfo::date_order() const {
  switch (locale_number(LOCALE_NAME_USER_DEFAULT, LOCALE_IDATE).value_or(0)) {
    case 1:
      return DateOrder::kDayMonthYear;
    case 2:
      return DateOrder::kYearMonthDay;
    default:
      return DateOrder::kMonthDayYear;
  }
}

std::string Win32SystemInfo::format_date(const DateTime& date) const {
  const SYSTEMTIME time = system_time(date);
  wchar_t text[kLocaleTextLimit];
  int length = GetDateFormatEx(LOCALE_NAME_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, text,
                               kLocaleTextLimit, nullptr);
  if (length == 0) return {};
  std::string formatted = narrow({text, static_cast<std::size_t>(length - 1)});
  if (is_midnight(date)) return formatted;
  length = GetTimeFormatEx(LOCALE_NAME_USER_DEFAULT, 0, &time, nullptr, text, kLocaleTextLimit);
  if (length > 0) {
    formatted += ' ';
    append_narrow({text, static_cast<std::size_t>(length - 1)}, formatted);
  }
  return formatted;
}

FileTime Win32SystemInfo::local_time(FileTime time) const {
  const auto ticks = static_cast<std::uint64_t>(time.ticks);
  const FILETIME utc{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32U)};
  FILETIME local{};
  return FileTimeToLocalFileTime(&utc, &local) != 0 ? file_time(local) : time;
}

}  // namespace quillvane
