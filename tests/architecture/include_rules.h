// The rules of the rows: what a source file may include.
//
//   app
//   view/win32  view/console
//   core
//   shortcuts
//   cleaning
//   categories
//   drivesearch
//   dialogs
//   scan
//   lang
//   controls
//   forms
//   machine
//   support
//   platform, and beside it platform/win32, platform/folder and platform/virtual
//
// Arrows only point down, and headers of the system or of a library stay where they are needed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

// What the file breaks, one sentence a line of it; `file` is its path from src/ ("core/form7.cpp").
// Tests may stand on any row.
[[nodiscard]] std::vector<std::string> broken_rules(std::string_view file,
                                                    std::string_view content);

// The folder whose row the file belongs to; empty when no row is told for it.
[[nodiscard]] std::string_view folder_of(std::string_view file);

// Our own headers that the file includes.
[[nodiscard]] std::vector<std::string_view> own_includes(std::string_view content);

}  // namespace quillvane
