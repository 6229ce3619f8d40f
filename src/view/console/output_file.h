// A file that a command writes, or standard output in its place.
#pragma once

#include <fstream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace quillvane {

// Makes the file `name` hold these bytes; "-" stands for `standard_output`. Answers why it could
// not be done; nothing when it was.
[[nodiscard]] inline std::optional<std::string> write_output(const std::string& name,
                                                             std::string_view bytes,
                                                             std::ostream& standard_output) {
  if (name == "-") {
    standard_output << bytes;
    return std::nullopt;  // what cannot be printed is told by the program itself
  }
  std::ofstream file(name, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  return file ? std::nullopt : std::optional<std::string>("cannot be written");
}

}  // namespace quillvane
