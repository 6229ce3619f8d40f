#include "view/console/paint/paint_words.h"

#include <charconv>

namespace quillvane {

std::optional<std::int64_t> whole_number(std::string_view text) {
  const bool is_hex = text.starts_with("0x") || text.starts_with("0X");
  if (is_hex) text.remove_prefix(2);
  if (is_hex && text.starts_with('-')) return std::nullopt;
  std::int64_t number = 0;
  const char* end = text.data() + text.size();
  const auto [read, failed] = std::from_chars(text.data(), end, number, is_hex ? 16 : 10);
  if (failed != std::errc() || read != end) return std::nullopt;
  return number;
}

void PaintWords::wrong(std::string_view what, std::string_view why) {
  if (!problem_) problem_ = std::string(what) + ": " + std::string(why);
}

void PaintWords::read(std::string_view option, const std::string& word, int least, int most,
                      int& number) {
  if (word.empty()) return;
  const auto value = whole_number(word);
  if (value && *value >= least && *value <= most) {
    number = static_cast<int>(*value);
    return;
  }
  const bool is_any = least == INT32_MIN && most == INT32_MAX;
  wrong(option, is_any ? "needs a whole number of 32 bits"
                       : "needs a whole number from " + std::to_string(least) + " to " +
                             std::to_string(most));
}

void PaintWords::read_size(std::string_view option, const std::string& word, Size& size) {
  if (word.empty()) return;
  const std::size_t x = word.find('x', 1);
  const auto side = [](std::string_view text) -> std::optional<int> {
    const auto number = whole_number(text);
    if (!number || *number < 1 || *number > kMostSide) return std::nullopt;
    return static_cast<int>(*number);
  };
  if (x != std::string::npos) {
    const auto width = side(std::string_view(word).substr(0, x));
    const auto height = side(std::string_view(word).substr(x + 1));
    if (width && height) {
      size = {*width, *height};
      return;
    }
  }
  wrong(option, "needs WIDTHxHEIGHT, each from 1 to " + std::to_string(kMostSide));
}

void PaintWords::read_color(std::string_view option, const std::string& word, Color& color) {
  constexpr std::int64_t kWhite = 0xFFFFFF;
  if (word.empty()) return;
  const auto value = whole_number(word);
  if (value && *value >= 0 && *value <= kWhite) {
    color = static_cast<Color>(*value);
  } else {
    wrong(option, "needs a colour, 0xBBGGRR or a decimal number");
  }
}

void PaintWords::read_switch(std::string_view option, const std::string& word, bool& on) {
  if (word.empty()) return;
  if (word != "on" && word != "off") return wrong(option, "needs on or off");
  on = word == "on";
}

int write_picture(const ConsoleSession& session, const std::string& file, const Image& picture) {
  if (session.io.pictures == nullptr) return session.problem(file + ": no pictures can be made");
  const auto failed = session.io.pictures->files.write_png(file, picture);
  return failed ? session.problem(file + ": " + *failed) : kDone;
}

bool can_write_captions(const ConsoleSession& session) {
  if (session.io.pictures == nullptr) return false;
  const auto problem = session.io.pictures->text.problem();
  if (problem) session.problem(*problem);
  return !problem;
}

}  // namespace quillvane
