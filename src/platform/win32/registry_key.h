// Owns an open registry key and closes it once. An empty key is a valid object: it is what a key
// that could not be opened leaves behind.
#pragma once

#include <windows.h>

#include <string>
#include <utility>

#include "platform/registry.h"

namespace quillvane {

class RegistryKey {
 public:
  // Opens an existing key with exactly the access asked for.
  static RegistryKey open(Hive hive, const std::string& key, REGSAM access);

  // Opens a key, made with all above it where missing.
  static RegistryKey create(Hive hive, const std::string& key, REGSAM access);

  RegistryKey() = default;
  RegistryKey(RegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
  RegistryKey& operator=(RegistryKey&& other) noexcept {
    std::swap(key_, other.key_);
    return *this;
  }
  ~RegistryKey() {
    if (is_open()) RegCloseKey(key_);
  }

  [[nodiscard]] bool is_open() const { return key_ != nullptr; }
  [[nodiscard]] HKEY get() const { return key_; }

 private:
  explicit RegistryKey(HKEY key) : key_(key) {}

  HKEY key_ = nullptr;
};

}  // namespace quillvane
