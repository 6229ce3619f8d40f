#include "platform/win32/wide_text.h"

#include <windows.h>

#include <algorithm>
#include <limits>

namespace quillvane {

namespace {

// Windows counts characters in an int; no text of the program comes near.
template <typename Text>
int length_of(const Text& text) {
  return static_cast<int>(
      std::min(text.size(), static_cast<std::size_t>(std::numeric_limits<int>::max())));
}

bool is_ascii(std::wstring_view text) {
  return std::all_of(text.begin(), text.end(), [](wchar_t unit) { return unit < 0x80; });
}

}  // namespace

std::wstring widen(std::string_view text) {
  const int length = length_of(text);
  const int units = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(units), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(), units);
  return wide;
}

std::string narrow(std::wstring_view text) {
  std::string out;
  append_narrow(text, out);
  return out;
}

void append_narrow(std::wstring_view text, std::string& out) {
  const std::size_t begin = out.size();
  if (is_ascii(text)) {  // nearly every name, and far cheaper than two calls
    out.resize(begin + text.size());
    std::transform(text.begin(), text.end(), out.begin() + static_cast<std::ptrdiff_t>(begin),
                   [](wchar_t unit) { return static_cast<char>(unit); });
    return;
  }
  const int length = length_of(text);
  const int bytes =
      WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
  out.resize(begin + static_cast<std::size_t>(bytes));
  WideCharToMultiByte(CP_UTF8, 0, text.data(), length, out.data() + begin, bytes, nullptr, nullptr);
}

}  // namespace quillvane
