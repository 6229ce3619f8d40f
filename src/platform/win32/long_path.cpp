#include "platform/win32/long_path.h"

#include <windows.h>

#include <algorithm>

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

std::wstring absolute_path(const std::wstring& path) {
  const DWORD needed = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  std::wstring full(needed, L'\0');
  full.resize(GetFullPathNameW(path.c_str(), needed, full.data(), nullptr));
  return full;
}

}  // namespace

std::wstring long_path(std::string_view path) {
  std::wstring wide = widen(path);
  std::replace(wide.begin(), wide.end(), L'/', L'\\');
  if (wide.starts_with(L"\\\\?\\") || wide.empty()) return wide;
  const bool is_absolute = wide.starts_with(L"\\\\") || wide.substr(1, 2) == L":\\";
  if (!is_absolute) wide = absolute_path(wide);
  if (wide.starts_with(L"\\\\")) return L"\\\\?\\UNC" + wide.substr(1);
  return L"\\\\?\\" + wide;
}

std::wstring path_below(std::wstring_view folder, std::wstring_view name) {
  std::wstring path(folder);
  if (!path.ends_with(L'\\')) path += L'\\';
  return path += name;
}

}  // namespace quillvane
