#include "support/registry_text.h"

#include <array>
#include <charconv>

namespace quillvane {

namespace {

constexpr std::size_t kBufferBytes = 1024;  // a value that fills it counts as too long

// The bytes of a number from last to first. The digits are not padded: this reader is meant so.
std::string dword_text(std::string_view bytes) {
  std::string text = "&h";
  for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
    std::array<char, 2> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                   static_cast<unsigned char>(*byte), 16);
    for (const char* digit = digits.data(); digit != end.ptr; ++digit) {
      text.push_back(*digit >= 'a' ? static_cast<char>(*digit - 'a' + 'A') : *digit);
    }
  }
  return text;
}

RegistryText read(const Registry& registry, Hive hive, const std::string& key,
                  const std::string& name, KeyAccess access) {
  const auto value = registry.value(hive, key, name, access);
  if (value.failed()) return {false, {}, value.problem()};
  if (!value || value->data.size() >= kBufferBytes) return {};
  std::string_view data = value->data;
  if (data.ends_with('\0')) data.remove_suffix(1);
  if (value->type == RegistryType::kSz) return {true, std::string(data), {}};
  if (value->type == RegistryType::kDword) return {true, dword_text(data), {}};
  return {true, {}, {}};
}

}  // namespace

RegistryText ReadRegistryString(const Registry& registry, Hive hive, const std::string& key,
                                const std::string& name) {
  return read(registry, hive, key, name, KeyAccess::kSystemSettings);
}

RegistryText ReadRegistryString32(const Registry& registry, Hive hive, const std::string& key,
                                  const std::string& name) {
  return read(registry, hive, key, name, KeyAccess::kSettings);
}

RegistryWrite WriteRegistryString(Registry& registry, Hive hive, const std::string& key,
                                  const std::string& name, std::string_view text) {
  const RegistryWrite made = registry.create_key(hive, key);
  if (!made) return made;
  return registry.set_value(hive, key, name, {RegistryType::kSz, std::string(text)});
}

}  // namespace quillvane
