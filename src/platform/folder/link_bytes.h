// Bytes of a shell link, read from the front and never beyond their end.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quillvane {

// The number of `Number`'s size that stands at `at`, least byte first; nothing when the bytes end
// before.
template <typename Number>
[[nodiscard]] std::optional<Number> number_at(std::string_view bytes, std::size_t at) {
  if (at > bytes.size() || bytes.size() - at < sizeof(Number)) return std::nullopt;
  std::uint64_t value = 0;
  for (std::size_t i = sizeof(Number); i > 0; --i) {
    value = value << 8U | static_cast<unsigned char>(bytes[at + i - 1]);
  }
  return static_cast<Number>(value);
}

// The bytes from `at` to the next zero; nothing when there is none.
[[nodiscard]] inline std::optional<std::string_view> text_at(std::string_view bytes,
                                                             std::size_t at) {
  if (at > bytes.size()) return std::nullopt;
  const std::size_t end = bytes.find('\0', at);
  if (end == std::string_view::npos) return std::nullopt;
  return bytes.substr(at, end - at);
}

// The same of UTF-16 units, whose zero has two bytes.
[[nodiscard]] inline std::optional<std::string_view> wide_text_at(std::string_view bytes,
                                                                  std::size_t at) {
  for (std::size_t end = at; end <= bytes.size() && bytes.size() - end >= 2; end += 2) {
    if (bytes[end] == '\0' && bytes[end + 1] == '\0') return bytes.substr(at, end - at);
  }
  return std::nullopt;
}

class LinkBytes {
 public:
  explicit LinkBytes(std::string_view bytes) : rest_(bytes) {}

  [[nodiscard]] std::string_view rest() const { return rest_; }

  // The next `count` bytes; nothing, and no step forward, when there are fewer.
  [[nodiscard]] std::optional<std::string_view> take(std::size_t count) {
    if (count > rest_.size()) return std::nullopt;
    const std::string_view taken = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return taken;
  }

  template <typename Number>
  [[nodiscard]] std::optional<Number> take_number() {
    const auto number = number_at<Number>(rest_, 0);
    if (number) rest_.remove_prefix(sizeof(Number));
    return number;
  }

 private:
  std::string_view rest_;
};

}  // namespace quillvane
