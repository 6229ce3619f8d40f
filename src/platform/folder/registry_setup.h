// Tables of registry values that new machines begin with.
#pragma once

#include <cstdint>
#include <span>

#include "platform/folder/registry_store.h"
#include "platform/registry.h"

namespace quillvane {

struct RegistrySetup {
  Hive hive;
  const char* key;
  const char* name = nullptr;  // none just makes the key
  RegistryType type = RegistryType::kSz;
  const char* text = "";     // of texts; a multi-string has this one string
  std::uint32_t number = 0;  // of dwords
};

// Writes all rows, or none. False when they cannot be written.
[[nodiscard]] bool set_up_registry(FolderRegistry& registry, std::span<const RegistrySetup> rows);

}  // namespace quillvane
