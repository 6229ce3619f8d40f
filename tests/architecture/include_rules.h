// The rules of the layers: what a source file may include.
//
//   app
//   view/win32  view/console
//   core categories cleaning drivesearch shortcuts lang
//   forms controls
//   support
//   platform, and behind it platform/win32, platform/folder and platform/virtual
//
// Arrows only point down, and headers of the system or of a library stay where they are needed.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

// What the file breaks, one sentence a line of it; `file` is its path from src/
// ("core/form7.cpp"). Tests may stand on any layer.
[[nodiscard]] std::vector<std::string> broken_rules(std::string_view file,
                                                    std::string_view content);

}  // namespace quillvane
