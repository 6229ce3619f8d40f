// Tables of registry values that new machines begin with.
#pragma once

#include <span>

#include "platform/folder/registry_store.h"
#include "platform/registry.h"

namespace quillvane {

struct RegistrySetup {
  Hive hive;
  RegistryType type;  // kSz, kExpandSz, kMultiSz or kDword
  const char* key;
  const char* name = nullptr;  // none just makes the key, whatever the type
  const char* text = "";       // a multi-string has this one string; numbers are decimal
};

// Writes all rows, or none. False when they cannot be written.
[[nodiscard]] bool set_up_registry(FolderRegistry& registry, std::span<const RegistrySetup> rows);

}  // namespace quillvane
