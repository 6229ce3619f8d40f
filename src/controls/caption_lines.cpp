#include "controls/caption_lines.h"

#include <algorithm>

#include "platform/unicode_case.h"
#include "platform/utf8.h"

namespace quillvane {

namespace {

// Of several letters behind an "&" the last is the one, as Windows has it.
CaptionLine without_marks(std::string_view caption) {
  CaptionLine line;
  for (std::size_t at = 0; at < caption.size(); ++at) {
    if (caption[at] == '&' && at + 1 < caption.size()) {
      ++at;
      if (caption[at] != '&') line.access_key = line.text.size();
    } else if (caption[at] == '&') {
      continue;
    }
    line.text.push_back(caption[at]);
  }
  return line;
}

// The part of `whole` from `begin` to `end`.
CaptionLine part(const CaptionLine& whole, std::size_t begin, std::size_t end) {
  CaptionLine line{whole.text.substr(begin, end - begin), std::nullopt};
  if (whole.access_key && *whole.access_key >= begin && *whole.access_key < end) {
    line.access_key = *whole.access_key - begin;
  }
  return line;
}

std::size_t end_of_word(const std::string& text, std::size_t from, std::size_t end) {
  return std::min(text.find(' ', from), end);
}

// The lines of the part of `whole` up to `end`, which is no line feed's.
void break_words(const CaptionLine& whole, std::size_t begin, std::size_t end, int width,
                 const std::function<int(std::string_view)>& width_of,
                 std::vector<CaptionLine>& lines) {
  std::size_t fits = end_of_word(whole.text, begin, end);
  while (fits < end) {
    const std::size_t next = end_of_word(whole.text, fits + 1, end);
    const std::string_view longer(whole.text.data() + begin, next - begin);
    if (width_of(longer) <= width) {
      fits = next;
      continue;
    }
    lines.push_back(part(whole, begin, fits));
    begin = fits + 1;
    fits = next;
  }
  lines.push_back(part(whole, begin, end));
}

}  // namespace

std::string access_key_of(std::string_view caption) {
  const CaptionLine line = without_marks(caption);
  if (!line.access_key) return {};
  const std::size_t length = decode_utf8(line.text, *line.access_key).length;
  return lower_case(line.text.substr(*line.access_key, length));
}

std::vector<CaptionLine> caption_lines(std::string_view caption, int width,
                                       const std::function<int(std::string_view)>& width_of) {
  const CaptionLine whole = without_marks(caption);
  std::vector<CaptionLine> lines;
  for (std::size_t begin = 0; begin < whole.text.size();) {
    const std::size_t end = std::min(whole.text.find('\n', begin), whole.text.size());
    const bool has_return = end > begin && whole.text[end - 1] == '\r';
    break_words(whole, begin, end - (has_return ? 1 : 0), width, width_of, lines);
    begin = end + 1;
  }
  return lines;
}

}  // namespace quillvane
