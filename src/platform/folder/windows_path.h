// The parts of an absolute Windows path: its drive and the names below it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/path_limit.h"

namespace quillvane {

struct WindowsPath {
  char drive = 'C';  // upper case
  std::vector<std::string> names;

  // Whether both lead to the same place by their text; case is of no account.
  [[nodiscard]] bool begins_with(const WindowsPath& folder) const;
};

// Takes "C:\Temp\a.tmp" apart. '/' parts names as well; empty names and "." are dropped, ".." takes
// the name before it away and is nothing at the root. "C:" is the root. Nothing when the text is no
// path on a drive.
[[nodiscard]] std::optional<WindowsPath> parse_windows_path(std::string_view text);

// The text with a backslash at its end, as a listing puts the pattern behind it.
[[nodiscard]] std::string with_backslash(std::string_view folder);

// Whether Windows allows a file of this name. Names that are there already are used all the same.
[[nodiscard]] bool can_be_created(std::string_view name);

}  // namespace quillvane
