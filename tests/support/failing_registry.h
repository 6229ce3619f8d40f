// A machine's registry of which single values cannot be read for a while.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "platform/registry.h"
#include "platform/unicode_case.h"

namespace quillvane {

class FailingRegistry final : public Registry {
 public:
  explicit FailingRegistry(Registry& next) : next_(next) {}

  // Names of values, in lower case, that cannot be read.
  std::set<std::string> unreadable;
  // Whether nothing can be written.
  bool write_protected = false;

  static constexpr const char* kWhy = "the disk fails";

  [[nodiscard]] RegistryRead<std::vector<std::string>> sub_keys(Hive hive, const std::string& key,
                                                                KeyAccess access) const override {
    return next_.sub_keys(hive, key, access);
  }
  [[nodiscard]] RegistryRead<std::vector<NamedRegistryValue>> values(
      Hive hive, const std::string& key, KeyAccess access) const override {
    return next_.values(hive, key, access);
  }
  [[nodiscard]] RegistryRead<RegistryValue> value(Hive hive, const std::string& key,
                                                  const std::string& name,
                                                  KeyAccess access) const override {
    if (unreadable.contains(lower_case(name))) return RegistryRead<RegistryValue>::failure(kWhy);
    return next_.value(hive, key, name, access);
  }
  RegistryWrite create_key(Hive hive, const std::string& key) override {
    return write_protected ? RegistryWrite::failure(kWhy) : next_.create_key(hive, key);
  }
  RegistryWrite set_value(Hive hive, const std::string& key, const std::string& name,
                          const RegistryValue& value) override {
    return write_protected ? RegistryWrite::failure(kWhy) : next_.set_value(hive, key, name, value);
  }
  RegistryWrite remove_value(Hive hive, const std::string& key, const std::string& name) override {
    return write_protected ? RegistryWrite::failure(kWhy) : next_.remove_value(hive, key, name);
  }

 private:
  Registry& next_;
};

}  // namespace quillvane
