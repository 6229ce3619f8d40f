// The lines of a script that hold a command, one after the other.
#pragma once

#include <cstddef>
#include <istream>
#include <optional>
#include <string>

namespace quillvane {

// Bytes; what is longer is no line that somebody wrote.
inline constexpr std::size_t kLongestScriptLine = std::size_t{1} << 20U;

struct ScriptLine {
  int number = 0;    // from 1
  std::string text;  // of one that is too long the beginning, which is too long itself

  friend bool operator==(const ScriptLine&, const ScriptLine&) = default;
};

// Reads no further than asked, so that a script can be typed or sent line by line.
class ScriptReader {
 public:
  // `source` must outlive it.
  explicit ScriptReader(std::istream& source) : source_(source) {}

  // The next line that is neither blank nor a comment (its first character that isn't a blank is
  // "#"); nothing at the end, and where the source cannot be read.
  [[nodiscard]] std::optional<ScriptLine> next();

  // The number of the line in which the source could not be read on, if it ended there. What was
  // read of that line is no command.
  [[nodiscard]] std::optional<int> unread_line() const;

 private:
  // False behind the last line that can be read.
  [[nodiscard]] bool read_line(std::string& text);

  std::istream& source_;
  int number_ = 0;
};

}  // namespace quillvane
