// A place in the text of a registration file, and the small pieces that are read from there. Lines
// end in CR LF, LF or CR and are counted from 1.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillvane {

// Without blanks and tabs at both ends.
[[nodiscard]] std::string_view trim_blanks(std::string_view text);

class RegCursor {
 public:
  // `text` outlives the cursor.
  explicit RegCursor(std::string_view text) : text_(text) {}

  [[nodiscard]] std::size_t line() const { return line_; }

  // Keeps the first problem, "line 3: why", and is always false.
  bool fail(std::size_t line, const std::string& why);
  [[nodiscard]] const std::string& problem() const { return problem_; }

  // The character here; NUL at the end.
  [[nodiscard]] char peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }

  // Passes over blanks, empty lines and comment lines. False at the end of the file.
  [[nodiscard]] bool skip_to_content();
  void skip_blanks();

  // Takes `word` (lower case) if it stands here in any case of its letters.
  [[nodiscard]] bool take(std::string_view word);

  // The rest of the line without blanks at its end, and on to the next line.
  [[nodiscard]] std::string_view take_line();

  // Ends a line behind which only blanks and a comment may stand.
  [[nodiscard]] bool end_line();

  // A text in quotes; \" and \\ are a quote and a backslash in it, and it may go over lines.
  // Requires: a quote stands here.
  [[nodiscard]] bool take_quoted(std::string& out);

  // A number of 1 to 8 hexadecimal digits.
  [[nodiscard]] std::optional<std::uint32_t> take_hex_number();

  // Bytes as "01,ff,..." in hexadecimal, which go on in the next line behind a backslash.
  [[nodiscard]] bool take_bytes(std::string& out);

 private:
  [[nodiscard]] bool at_line_end() const;
  void pass_line_end();
  void pass_line();
  [[nodiscard]] bool pass_continuation();
  [[nodiscard]] std::optional<unsigned> take_digit();

  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t line_ = 1;
  std::string problem_;
};

}  // namespace quillvane
