#include "machine/registry_setup.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/multi_string.h"

namespace quillvane {

namespace {

std::string setup_data(const RegistrySetup& row) {
  if (row.type == RegistryType::kMultiSz) return multi_string_data({row.text});
  if (row.type != RegistryType::kDword) return std::string(row.text) + '\0';
  const std::string_view digits = row.text;
  std::uint32_t number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  std::string bytes;
  for (unsigned shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<char>(number >> shift & 0xFFU));
  }
  return bytes;
}

}  // namespace

bool set_up_registry(FolderRegistry& registry, std::span<const RegistrySetup> rows) {
  return registry.at_one_stroke([&] {
    return std::all_of(rows.begin(), rows.end(), [&](const RegistrySetup& row) -> bool {
      if (row.name == nullptr) return registry.create_key(row.hive, row.key);
      return registry.store_value(row.hive, row.key, row.name, {row.type, setup_data(row)});
    });
  });
}

}  // namespace quillvane
