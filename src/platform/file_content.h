// What a file holds, or why that cannot be told. A file that is missing is one thing, a file that
// is there and cannot be read another: what cannot be read is never replaced and never taken for
// empty.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace quillvane {

// The program's own files are lists and texts. What has more bytes is none of them, and could take
// the whole memory.
inline constexpr std::uint64_t kMostFileContent = std::uint64_t{1} << 30U;

enum class ReadFailure {
  kMissing,     // nothing is there: the disk says so, or the text is no path on one
  kFolder,      // a folder bears the name
  kInUse,       // another process holds it open and lets nobody read it
  kDenied,      // the rights are missing
  kTooLarge,    // it has more than kMostFileContent bytes
  kTooLong,     // its path has 260 characters or more and was not looked at
  kUnreadable,  // the disk fails, or whether anything is there cannot be told
};

class FileContent {
 public:
  FileContent(std::string bytes) : told_(std::move(bytes)) {}
  FileContent(ReadFailure why) : told_(why) {}

  [[nodiscard]] explicit operator bool() const {
    return std::holds_alternative<std::string>(told_);
  }
  // The bytes. Requires: it was read.
  [[nodiscard]] const std::string& operator*() const { return *std::get_if<std::string>(&told_); }
  // Requires: it was not read.
  [[nodiscard]] ReadFailure failure() const { return *std::get_if<ReadFailure>(&told_); }
  [[nodiscard]] bool is_missing() const { return *this == ReadFailure::kMissing; }

  friend bool operator==(const FileContent& content, std::string_view bytes) {
    return content && *content == bytes;
  }
  friend bool operator==(const FileContent& content, ReadFailure why) {
    return !content && content.failure() == why;
  }

  // For the messages of tests.
  friend void PrintTo(const FileContent& content, std::ostream* out) {
    if (content) {
      *out << '"' << *content << '"';
    } else {
      *out << "read failure " << static_cast<int>(content.failure());
    }
  }

 private:
  std::variant<std::string, ReadFailure> told_;
};

}  // namespace quillvane
