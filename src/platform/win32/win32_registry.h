// The registry of this PC.
#pragma once

#include "platform/registry.h"

namespace quillvane {

class Win32Registry final : public Registry {
 public:
  [[nodiscard]] RegistryRead<std::vector<std::string>> sub_keys(Hive hive, const std::string& key,
                                                                KeyAccess access) const override;
  [[nodiscard]] RegistryRead<std::vector<NamedRegistryValue>> values(
      Hive hive, const std::string& key, KeyAccess access) const override;
  [[nodiscard]] RegistryRead<RegistryValue> value(Hive hive, const std::string& key,
                                                  const std::string& name,
                                                  KeyAccess access) const override;
  RegistryWrite create_key(Hive hive, const std::string& key) override;
  RegistryWrite set_value(Hive hive, const std::string& key, const std::string& name,
                          const RegistryValue& value) override;
  RegistryWrite remove_value(Hive hive, const std::string& key, const std::string& name) override;
};

}  // namespace quillvane
