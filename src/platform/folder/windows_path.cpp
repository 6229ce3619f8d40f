#include "platform/folder/windows_path.h"

#include <algorithm>

#include "platform/unicode_case.h"

namespace quillvane {

namespace {

constexpr std::string_view kSeparators = "\\/";

std::optional<char> drive_letter(char c) {
  if (c >= 'a' && c <= 'z') return static_cast<char>(c - 'a' + 'A');
  if (c >= 'A' && c <= 'Z') return c;
  return std::nullopt;
}

}  // namespace

bool WindowsPath::begins_with(const WindowsPath& folder) const {
  return drive == folder.drive && names.size() >= folder.names.size() &&
         std::equal(folder.names.begin(), folder.names.end(), names.begin(), same_name);
}

std::optional<WindowsPath> parse_windows_path(std::string_view text) {
  if (text.size() < 2 || text[1] != ':') return std::nullopt;
  const auto drive = drive_letter(text[0]);
  text.remove_prefix(2);
  if (!drive || text.find('\0') != std::string_view::npos) return std::nullopt;
  if (!text.empty() && kSeparators.find(text[0]) == std::string_view::npos) return std::nullopt;

  WindowsPath path{*drive, {}};
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(kSeparators), text.size());
    const std::string_view name = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (name.empty() || name == ".") continue;
    if (name != "..") {
      path.names.emplace_back(name);
    } else if (!path.names.empty()) {
      path.names.pop_back();
    }
  }
  return path;
}

std::string with_backslash(std::string_view folder) {
  std::string text(folder);
  if (!text.ends_with('\\')) text += '\\';
  return text;
}

bool can_be_created(std::string_view name) {
  return std::none_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) < 0x20 ||
           std::string_view("\"*/:<>?\\|").find(c) != std::string_view::npos;
  });
}

}  // namespace quillvane
