#include "support/suite_color.h"

#include <charconv>
#include <string>

#include "support/text.h"

namespace quillvane {

namespace {

constexpr const char* kSuiteKey = "SOFTWARE\\Quillvane\\Tidewrack";

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
  std::uint32_t chosen = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), chosen);
  const bool is_number = error == std::errc() && end == text.data() + text.size();
  return is_number && !text.empty() ? chosen : kSuiteColor;
}

}  // namespace quillvane
