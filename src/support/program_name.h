// What the program is called, and how to reach its maker.
#pragma once

#include <string_view>

namespace quillvane {

inline constexpr std::string_view kProgramName = "Quillvane Disk Cleaner";

inline constexpr std::string_view kWebAddress = "https://www.quillvane.example";
inline constexpr std::string_view kMailAddress = "support@quillvane.example";

}  // namespace quillvane
