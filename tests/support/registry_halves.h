// The registry of 64-bit Windows as a 32-bit program sees it, held in memory: what is asked for
// with the right 0x100 comes from the 64-bit half, all else and every write from and to the 32-bit
// one.
#pragma once

#include "tests/support/memory_registry.h"

namespace quillvane {

class RegistryHalves final : public Registry {
 public:
  [[nodiscard]] RegistryRead<std::vector<std::string>> sub_keys(
      Hive hive, const std::string& key, KeyAccess access = KeyAccess::kRead) const override {
    return half(access).sub_keys(hive, key, access);
  }
  [[nodiscard]] RegistryRead<std::vector<NamedRegistryValue>> values(
      Hive hive, const std::string& key, KeyAccess access = KeyAccess::kRead) const override {
    return half(access).values(hive, key, access);
  }
  [[nodiscard]] RegistryRead<RegistryValue> value(
      Hive hive, const std::string& key, const std::string& name,
      KeyAccess access = KeyAccess::kRead) const override {
    return half(access).value(hive, key, name, access);
  }
  RegistryWrite create_key(Hive hive, const std::string& key) override {
    return narrow.create_key(hive, key);
  }
  RegistryWrite set_value(Hive hive, const std::string& key, const std::string& name,
                          const RegistryValue& value) override {
    return narrow.set_value(hive, key, name, value);
  }
  RegistryWrite remove_value(Hive hive, const std::string& key, const std::string& name) override {
    return narrow.remove_value(hive, key, name);
  }

  MemoryRegistry narrow;  // the 32-bit half
  MemoryRegistry wide;    // the 64-bit half

 private:
  [[nodiscard]] const MemoryRegistry& half(KeyAccess access) const {
    constexpr auto kWide = 0x100U;
    return (static_cast<std::uint32_t>(access) & kWide) != 0 ? wide : narrow;
  }
};

}  // namespace quillvane
