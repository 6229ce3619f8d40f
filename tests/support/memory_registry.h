// A registry held in memory, for tests of routines that need a registry and no machine.
//
// Values are given in the order in which they were first set. The rights that each read of a value
// or of values asked for are kept in `accesses`. With `writable` off nothing can be made or
// written. Sub-keys are not listed.
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/registry.h"
#include "platform/unicode_case.h"

namespace quillvane {

// The value of that name, whatever its case.
template <typename Values>
auto find_value(Values& values, const std::string& name) {
  return std::find_if(values.begin(), values.end(),
                      [&](const auto& entry) { return same_name(entry.name, name); });
}

class MemoryRegistry final : public Registry {
 public:
  // Sets a value, making its key.
  void put(Hive hive, const std::string& key, const std::string& name, RegistryType type,
           std::string data) {
    std::vector<NamedRegistryValue>& values = keys_[{hive, lower_case(key)}];
    const auto found = find_value(values, name);
    if (found == values.end()) {
      values.push_back({name, {type, std::move(data)}});
    } else {
      found->value = {type, std::move(data)};
    }
  }

  [[nodiscard]] std::optional<std::vector<std::string>> sub_keys(
      Hive, const std::string&, KeyAccess = KeyAccess::kRead) const override {
    return std::nullopt;
  }

  [[nodiscard]] std::optional<std::vector<NamedRegistryValue>> values(
      Hive hive, const std::string& key, KeyAccess access = KeyAccess::kRead) const override {
    accesses.push_back(access);
    const auto found = keys_.find({hive, lower_case(key)});
    if (found == keys_.end()) return std::nullopt;
    return found->second;
  }

  [[nodiscard]] std::optional<RegistryValue> value(
      Hive hive, const std::string& key, const std::string& name,
      KeyAccess access = KeyAccess::kRead) const override {
    accesses.push_back(access);
    const auto values = keys_.find({hive, lower_case(key)});
    if (values == keys_.end()) return std::nullopt;
    const auto found = find_value(values->second, name);
    if (found == values->second.end()) return std::nullopt;
    return found->value;
  }

  [[nodiscard]] bool create_key(Hive hive, const std::string& key) override {
    if (writable) keys_[{hive, lower_case(key)}];
    return writable;
  }

  [[nodiscard]] bool set_value(Hive hive, const std::string& key, const std::string& name,
                               const RegistryValue& value) override {
    if (!writable || !keys_.contains({hive, lower_case(key)})) return false;
    put(hive, key, name, value.type, value.data);
    return true;
  }

  bool writable = true;
  mutable std::vector<KeyAccess> accesses;

 private:
  std::map<std::pair<Hive, std::string>, std::vector<NamedRegistryValue>> keys_;
};

}  // namespace quillvane
