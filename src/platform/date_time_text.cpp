#include "platform/date_time_text.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstddef>

namespace quillvane {

namespace {

// Requires: digits only, and few.
int number(std::string_view digits) {
  int value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

}  // namespace

std::optional<DateTime> date_time_from_text(std::string_view text) {
  constexpr std::string_view kForm = "dddd-dd-dd dd:dd:dd";
  const bool fits = std::equal(
      text.begin(), text.end(), kForm.begin(), kForm.end(),
      [](char c, char expected) { return expected == 'd' ? c >= '0' && c <= '9' : c == expected; });
  if (!fits) return std::nullopt;

  const auto field = [text](std::size_t at, std::size_t width) {
    return number(text.substr(at, width));
  };
  const DateTime date{.year = field(0, 4),
                      .month = field(5, 2),
                      .day = field(8, 2),
                      .hour = field(11, 2),
                      .minute = field(14, 2),
                      .second = field(17, 2)};
  const std::chrono::year_month_day day{std::chrono::year{date.year},
                                        std::chrono::month{static_cast<unsigned>(date.month)},
                                        std::chrono::day{static_cast<unsigned>(date.day)}};
  if (!day.ok() || date.hour > 23 || date.minute > 59 || date.second > 59) return std::nullopt;
  return date;
}

}  // namespace quillvane
