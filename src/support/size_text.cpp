#include "support/size_text.h"

#include <cstdint>

#include "support/text.h"

namespace quillvane {

namespace {

constexpr std::int64_t kK = 1024;

// `bytes` / `unit`, rounded to 1 / `scale` with ties to the even digit, in its shortest form.
std::string rounded(std::int64_t bytes, std::int64_t unit, int scale, std::string_view separator) {
  const std::int64_t scaled = bytes * scale;
  std::int64_t steps = scaled / unit;
  const std::int64_t rest = scaled % unit;
  if (rest * 2 > unit || (rest * 2 == unit && steps % 2 != 0)) ++steps;

  std::string text = std::to_string(steps / scale);
  std::string decimals;
  for (std::int64_t fraction = steps % scale, digit = scale / 10; digit > 0; digit /= 10) {
    decimals += static_cast<char>('0' + fraction / digit);
    fraction %= digit;
  }
  while (decimals.ends_with('0')) decimals.pop_back();
  if (!decimals.empty()) text.append(separator).append(decimals);
  return text;
}

}  // namespace

std::string NumberInKB(double bytes, std::string_view decimal_separator) {
  const double limit = static_cast<double>(kK * kK * kK * kK);
  if (bytes >= limit) return {};
  if (bytes < kK) return number_text(bytes) + " B";
  const auto whole = static_cast<std::int64_t>(bytes);
  if (whole < kK * kK) return rounded(whole, kK, 10, decimal_separator) + " KB";
  if (whole < kK * kK * kK) return rounded(whole, kK * kK, 100, decimal_separator) + " MB";
  return rounded(whole, kK * kK * kK, 100, decimal_separator) + " GB";
}

std::string search_size_text(double bytes, std::string_view decimal_separator) {
  if (bytes < kK) return number_text(bytes) + " Byte";
  const auto whole = static_cast<std::int64_t>(bytes);
  if (whole <= kK * kK) return rounded(whole, kK, 100, decimal_separator) + " KB";
  return rounded(whole, kK * kK, 100, decimal_separator) + " MB";
}

}  // namespace quillvane
