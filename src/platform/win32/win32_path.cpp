#include "platform/win32/win32_path.h"

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

bool is_separator(char c) { return c == '\\' || c == '/'; }

bool is_absolute(std::string_view path) {
  if (path.size() >= 2 && is_separator(path[0]) && is_separator(path[1])) return true;  // a share
  const bool has_drive = path.size() >= 2 && path[1] == ':' &&
                         ((path[0] >= 'A' && path[0] <= 'Z') || (path[0] >= 'a' && path[0] <= 'z'));
  return has_drive && (path.size() == 2 || is_separator(path[2]));
}

}  // namespace

bool is_usable_path(std::string_view path) {
  // A zero would end the path early for Windows, so that another file would be meant.
  return is_absolute(path) && path.find('\0') == std::string_view::npos;
}

std::optional<std::wstring> openable_path(std::string_view path) {
  if (!is_usable_path(path)) return std::nullopt;
  std::wstring wide = widen(path);
  if (wide.size() == 2) wide += L'\\';  // "C:" alone would be the folder the program stands in
  if (wide.size() >= kPathLimit) return std::nullopt;
  return wide;
}

std::optional<std::wstring> folder_prefix(std::string_view folder) {
  if (!is_usable_path(folder)) return std::nullopt;
  std::wstring wide = widen(folder);
  if (wide.back() != L'\\' && wide.back() != L'/') wide += L'\\';
  return wide;
}

}  // namespace quillvane
