#include "support/suite_color.h"

#include <cmath>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kSuiteKey = "SOFTWARE\\Quillvane\\Tidewrack";

// The colour that a number stands for, as 32 bits with a sign or without: those of the system are
// negative numbers. Nothing where the text has no number, or none of 32 bits.
std::optional<std::uint32_t> color_of(std::string_view text) {
  const auto number = number_at_head(text);
  if (!number) return std::nullopt;
  const double whole = std::nearbyint(*number);
  if (whole < -2147483648.0 || whole > 4294967295.0) return std::nullopt;
  return static_cast<std::uint32_t>(static_cast<std::int64_t>(whole));
}

}  // namespace

std::uint32_t suite_color(const Platform& platform) {
  const auto value =
      platform.registry.value(Hive::kLocalMachine, kSuiteKey, "color", KeyAccess::kRead);
  if (!value) return kSuiteColor;
  if (value->type != RegistryType::kSz && value->type != RegistryType::kExpandSz) {
    return kSuiteColor;
  }
  const std::string stored = value->data.substr(0, value->data.find('\0'));
  const std::string text(Trim(platform.environment.expand(stored)));
  return color_of(text).value_or(kSuiteColor);
}

}  // namespace quillvane
