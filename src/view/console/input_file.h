// A file that a command reads, or standard input in its place.
#pragma once

#include <filesystem>
#include <fstream>
#include <istream>
#include <string>
#include <system_error>

namespace quillvane {

class InputFile {
 public:
  // "-" and an empty name stand for `standard_input`, which must outlive this.
  InputFile(const std::string& name, std::istream& standard_input) {
    if (name.empty() || name == "-") {
      stream_ = &standard_input;
      return;
    }
    std::error_code ignored;
    // A folder opens like a file and then gives nothing.
    if (std::filesystem::is_directory(name, ignored)) return;
    file_.open(name, std::ios::binary);
    if (file_) stream_ = &file_;
  }

  [[nodiscard]] bool opened() const { return stream_ != nullptr; }
  // Requires: opened().
  [[nodiscard]] std::istream& stream() { return *stream_; }

 private:
  std::ifstream file_;
  std::istream* stream_ = nullptr;
};

}  // namespace quillvane
