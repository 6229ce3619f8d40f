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
  RegistryKey(RegistryKey&& other) noexcept
      : key_(std::exchange(other.key_, nullptr)), status_(other.status_) {}
  RegistryKey& operator=(RegistryKey&& other) noexcept {
    std::swap(key_, other.key_);
    std::swap(status_, other.status_);
    return *this;
  }
  ~RegistryKey() {
    if (is_open()) RegCloseKey(key_);
  }

  [[nodiscard]] bool is_open() const { return key_ != nullptr; }
  // What Windows answered to the opening.
  [[nodiscard]] LSTATUS status() const { return status_; }
  [[nodiscard]] HKEY get() const { return key_; }

 private:
  RegistryKey(HKEY key, LSTATUS status) : key_(key), status_(status) {}

  HKEY key_ = nullptr;
  LSTATUS status_ = ERROR_INVALID_HANDLE;
};

}  // namespace quillvane
