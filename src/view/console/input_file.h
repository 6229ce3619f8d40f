// A file that a command reads, or standard input in its place.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <istream>
#include <string>
#include <system_error>
#include <variant>

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

  // All that there is to read, or why that cannot be had; std::errc::file_too_large beyond
  // `most_bytes`. Requires: opened().
  [[nodiscard]] std::variant<std::string, std::error_code> read_all(std::size_t most_bytes) {
    std::string content;
    std::array<char, 65536> block;
    while (stream_->read(block.data(), block.size()) || stream_->gcount() > 0) {
      content.append(block.data(), static_cast<std::size_t>(stream_->gcount()));
      if (content.size() > most_bytes) return std::make_error_code(std::errc::file_too_large);
    }
    if (stream_->bad()) return std::make_error_code(std::errc::io_error);
    return content;
  }

 private:
  std::ifstream file_;
  std::istream* stream_ = nullptr;
};

}  // namespace quillvane
