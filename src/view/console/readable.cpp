#include "view/console/readable.h"

#include <vector>

#include "platform/utf8.h"
#include "support/size_text.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::string_view kEllipsis = "...";

// Where each code point begins, and the end.
std::vector<std::size_t> code_point_starts(std::string_view text) {
  std::vector<std::size_t> starts{0};
  while (starts.back() < text.size()) {
    starts.push_back(starts.back() + decode_utf8(text, starts.back()).length);
  }
  return starts;
}

bool is_control(unsigned char c) { return c < 0x20 || c == 0x7F; }

}  // namespace

std::string readable_size(double bytes) {
  std::string text = NumberInKB(bytes, ".");
  return text.empty() ? number_text(bytes) + " B" : text;
}

std::string printable(std::string_view text) {
  std::string clean(text);
  for (char& c : clean) {
    if (is_control(static_cast<unsigned char>(c))) c = '?';
  }
  return clean;
}

std::size_t columns_of(std::string_view text) { return code_point_starts(text).size() - 1; }

std::string padded(std::string text, std::size_t columns) {
  const std::size_t taken = columns_of(text);
  if (taken < columns) text.append(columns - taken, ' ');
  return text;
}

std::string right_aligned(std::string text, std::size_t columns) {
  const std::size_t taken = columns_of(text);
  if (taken < columns) text.insert(0, columns - taken, ' ');
  return text;
}

std::string shortened(std::string_view text, std::size_t columns) {
  const std::vector<std::size_t> starts = code_point_starts(text);
  const std::size_t length = starts.size() - 1;
  if (length <= columns) return std::string(text);
  if (columns <= kEllipsis.size()) return std::string(kEllipsis.substr(0, columns));
  const std::size_t kept = columns - kEllipsis.size();
  const std::size_t head = kept / 2;
  std::string result(text.substr(0, starts[head]));
  result += kEllipsis;
  result += text.substr(starts[length - (kept - head)]);
  return result;
}

}  // namespace quillvane
