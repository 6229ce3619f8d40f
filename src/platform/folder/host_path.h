// Paths of the computer that holds a machine folder, between the program's text and the standard
// library's paths. The text is UTF-8 on Windows and bytes as they are on Linux.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quillvane {

[[nodiscard]] std::filesystem::path host_path(std::string_view text);
[[nodiscard]] std::string host_text(const std::filesystem::path& path);

}  // namespace quillvane
