// The user's two lists beside the executable: texts with an entry a line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace quillvane {

inline constexpr std::string_view kIgnoreFile = "ignore.tdw";
inline constexpr std::string_view kCustomFile = "custom.tdw";

// The lines that hold more than blanks, as they stand; none when the file cannot be read.
[[nodiscard]] std::vector<std::string> read_list_lines(const FileSystem& files,
                                                       const std::string& path);

// Adds a line behind what the file holds; a missing file is made. Without a word when it cannot be
// read or written.
void append_list_line(FileSystem& files, const std::string& path, const std::string& line);

// One line of custom.tdw: its fields joined by "|", which nothing keeps out of a field.
struct CustomEntry {
  std::string name;        // the caption of the category
  std::string location;    // folder to search
  std::string include;     // patterns, joined by commas
  std::string exclude;     // patterns to leave out, joined by commas
  std::string subfolders;  // "1" with subfolders, "0" without
};
[[nodiscard]] CustomEntry custom_entry_of(const std::string& line);
[[nodiscard]] std::string line_of(const CustomEntry& entry);

}  // namespace quillvane
