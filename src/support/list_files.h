// The user's two lists beside the executable: text files with an entry a line.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"

namespace quillvane {

inline constexpr std::string_view kIgnoreFile = "ignore.tdw";
inline constexpr std::string_view kCustomFile = "custom.tdw";

struct ListLines {
  std::vector<std::string> lines;  // those that hold more than blanks, as they stand
  std::string problem;             // why a list that is there was not read; empty when it was
};

// A missing list has no lines.
[[nodiscard]] ListLines read_list_file(const Platform& platform, const std::string& path);

// Adds a line behind what the list holds; a missing one is made. A list that cannot be read is not
// touched, and the answer is why, otherwise empty. Without a word when it cannot be written.
[[nodiscard]] std::string append_to_list_file(const Platform& platform, const std::string& path,
                                              const std::string& line);

// What the user is told of a list that was not read; `what_follows` is a sentence.
[[nodiscard]] std::string list_problem_message(const std::string& path, const std::string& problem,
                                               std::string_view what_follows);

// Replaces the list by these lines; false when it cannot be written.
[[nodiscard]] bool write_list_file(const Platform& platform, const std::string& path,
                                   const std::vector<std::string>& lines);

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
