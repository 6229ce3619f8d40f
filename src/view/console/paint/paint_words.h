// Words of `paint` as numbers, sizes and colours. What cannot be read is told in one line.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "controls/shapes.h"
#include "forms/control.h"
#include "view/console/console_command.h"

namespace quillvane {

// The most that a picture may have on a side.
inline constexpr int kMostSide = 8192;

// Decimal, or hexadecimal behind "0x"; nothing when it is no whole number of 64 bits.
[[nodiscard]] std::optional<std::int64_t> whole_number(std::string_view text);

// The words of one command, read one after the other; what is wrong with the first that is, is
// kept.
class PaintWords {
 public:
  // Of an option that was not given the word is empty, and what was there stays.
  void read(std::string_view option, const std::string& word, int least, int most, int& number);
  void read_size(std::string_view option, const std::string& word, Size& size);
  void read_color(std::string_view option, const std::string& word, Color& color);
  void read_switch(std::string_view option, const std::string& word, bool& on);

  // Something that the program itself says is wrong.
  void wrong(std::string_view what, std::string_view why);
  [[nodiscard]] const std::optional<std::string>& problem() const { return problem_; }

 private:
  std::optional<std::string> problem_;
};

// Writes the picture that `paint` made and answers the exit status.
int write_picture(const ConsoleSession& session, const std::string& file, const Image& picture);

// Whether captions can be drawn here; tells why not.
[[nodiscard]] bool can_write_captions(const ConsoleSession& session);

}  // namespace quillvane
