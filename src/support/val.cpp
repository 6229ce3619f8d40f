#include "support/val.h"

#include <charconv>
#include <cstdint>
#include <string>

namespace quillvane {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

std::string without_blanks(std::string_view text) {
  std::string out;
  for (const char c : text) {
    if (c != ' ' && c != '\t' && c != '\n' && c != '\r') out.push_back(c);
  }
  return out;
}

// The digits of a hexadecimal or octal number behind its mark.
std::optional<double> based_number(std::string_view digits, int base) {
  std::uint64_t value = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  if (end == digits.data()) return std::nullopt;
  return static_cast<double>(value);
}

// How far the decimal number at the head of `text` (without a sign) reaches.
std::size_t decimal_length(std::string_view text) {
  std::size_t at = 0;
  bool digits = false;
  while (at < text.size() && is_digit(text[at])) ++at, digits = true;
  if (at < text.size() && text[at] == '.') {
    ++at;
    while (at < text.size() && is_digit(text[at])) ++at, digits = true;
  }
  if (!digits) return 0;
  if (at < text.size() &&
      (text[at] == 'e' || text[at] == 'E' || text[at] == 'd' || text[at] == 'D')) {
    std::size_t exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
    const std::size_t first_digit = exponent;
    while (exponent < text.size() && is_digit(text[exponent])) ++exponent;
    if (exponent > first_digit) at = exponent;
  }
  return at;
}

}  // namespace

double Val(std::string_view text) { return number_at_head(text).value_or(0); }

std::optional<double> number_at_head(std::string_view text) {
  const std::string plain = without_blanks(text);
  std::string_view rest = plain;
  if (rest.size() > 2 && rest[0] == '&') {
    if (rest[1] == 'h' || rest[1] == 'H') return based_number(rest.substr(2), 16);
    if (rest[1] == 'o' || rest[1] == 'O') return based_number(rest.substr(2), 8);
  }
  const bool negative = !rest.empty() && rest[0] == '-';
  if (!rest.empty() && (rest[0] == '-' || rest[0] == '+')) rest.remove_prefix(1);

  std::string number(rest.substr(0, decimal_length(rest)));
  if (number.empty()) return std::nullopt;
  for (char& c : number) {
    if (c == 'd' || c == 'D') c = 'e';
  }
  double value = 0;
  std::from_chars(number.data(), number.data() + number.size(), value);
  return negative ? -value : value;
}

}  // namespace quillvane
