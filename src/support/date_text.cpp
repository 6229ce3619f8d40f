#include "support/date_text.h"

#include "support/text.h"

namespace quillvane {

namespace {

std::string with_digits(int number, std::size_t digits) {
  std::string text = std::to_string(number);
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  return text;
}

}  // namespace

std::string date_text(const DateTime& date, std::string_view format) {
  std::string text = replace_all(format, "dd", with_digits(date.day, 2));
  text = replace_all(text, "mm", with_digits(date.month, 2));
  return replace_all(text, "yyyy", with_digits(date.year, 4));
}

std::string time_text(const DateTime& time, std::string_view format) {
  std::string text = replace_all(format, "hh", with_digits(time.hour, 2));
  text = replace_all(text, "mm", with_digits(time.minute, 2));
  return replace_all(text, "ss", with_digits(time.second, 2));
}

}  // namespace quillvane
