// A registry held in memory, for tests of routines that need a registry and no machine.
//
// Values are given in the order in which they were first set. The rights that each read of a value
// or of values asked for are kept in `accesses`. With `writable` off nothing can be made or
// written; while `unreadable` says why, no read succeeds. Sub-keys are not listed.
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

  [[nodiscard]] RegistryRead<std::vector<std::string>> sub_keys(
      Hive, const std::string&, KeyAccess = KeyAccess::kRead) const override {
    if (!unreadable.empty()) return RegistryRead<std::vector<std::string>>::failure(unreadable);
    return std::nullopt;
  }

  [[nodiscard]] RegistryRead<std::vector<NamedRegistryValue>> values(
      Hive hive, const std::string& key, KeyAccess access = KeyAccess::kRead) const override {
    using Read = RegistryRead<std::vector<NamedRegistryValue>>;
    accesses.push_back(access);
    if (!unreadable.empty()) return Read::failure(unreadable);
    const auto found = keys_.find({hive, lower_case(key)});
    if (found == keys_.end()) return std::nullopt;
    return found->second;
  }

  [[nodiscard]] RegistryRead<RegistryValue> value(
      Hive hive, const std::string& key, const std::string& name,
      KeyAccess access = KeyAccess::kRead) const override {
    accesses.push_back(access);
    if (!unreadable.empty()) return RegistryRead<RegistryValue>::failure(unreadable);
    const auto values = keys_.find({hive, lower_case(key)});
    if (values == keys_.end()) return std::nullopt;
    const auto found = find_value(values->second, name);
    if (found == values->second.end()) return std::nullopt;
    return found->value;
  }

  RegistryWrite create_key(Hive hive, const std::string& key) override {
    if (!writable) return RegistryWrite::failure("it is read-only");
    keys_[{hive, lower_case(key)}];
    return {};
  }

  RegistryWrite set_value(Hive hive, const std::string& key, const std::string& name,
                          const RegistryValue& value) override {
    if (!writable) return RegistryWrite::failure("it is read-only");
    if (!keys_.contains({hive, lower_case(key)})) return RegistryWrite::failure("no such key");
    put(hive, key, name, value.type, value.data);
    return {};
  }

  RegistryWrite remove_value(Hive hive, const std::string& key, const std::string& name) override {
    if (!writable) return RegistryWrite::failure("it is read-only");
    const auto values = keys_.find({hive, lower_case(key)});
    if (values == keys_.end()) return {};
    std::erase_if(values->second, [&](const auto& value) { return same_name(value.name, name); });
    return {};
  }

  bool writable = true;
  std::string unreadable;
  mutable std::vector<KeyAccess> accesses;

 private:
  std::map<std::pair<Hive, std::string>, std::vector<NamedRegistryValue>> keys_;
};

}  // namespace quillvane
