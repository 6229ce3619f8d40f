// The registry of this PC.
#pragma once

#include "platform/registry.h"

namespace quillvane {

class Win32Registry final : public Registry {
 public:
  [[nodiscard]] std::optional<std::vector<std::string>> sub_keys(Hive hive, const std::string& key,
                                                                 KeyAccess access) const override;
  [[nodiscard]] std::optional<std::vector<NamedRegistryValue>> values(
      Hive hive, const std::string& key, KeyAccess access) const override;
  [[nodiscard]] std::optional<RegistryValue> value(Hive hive, const std::string& key,
                                                   const std::string& name,
                                                   KeyAccess access) const override;
  [[nodiscard]] bool create_key(Hive hive, const std::string& key) override;
  [[nodiscard]] bool set_value(Hive hive, const std::string& key, const std::string& name,
                               const RegistryValue& value) override;
};

}  // namespace quillvane
