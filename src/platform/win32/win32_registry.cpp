#include "platform/win32/win32_registry.h"

#include <windows.h>

#include <algorithm>

#include "platform/win32/registry_data.h"
#include "platform/win32/registry_key.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

// Longest names that a registry takes, with the terminator.
constexpr DWORD kKeyNameLimit = 256;
constexpr DWORD kValueNameLimit = 16384;

constexpr std::size_t kFirstDataBytes = 1024;

// Calls `read(buffer, length)` with a buffer that grows until the data fit; `length` goes in as the
// room and comes out as the length. False when the call fails otherwise. The data may have grown
// between two calls, so one larger try is not enough.
template <typename Read>
bool read_growing(std::string& buffer, Read read) {
  buffer.resize(kFirstDataBytes);
  for (;;) {
    auto length = static_cast<DWORD>(buffer.size());
    const LSTATUS status = read(reinterpret_cast<BYTE*>(buffer.data()), &length);
    if (status == ERROR_MORE_DATA) {
      buffer.resize(std::max<std::size_t>(length, buffer.size() * 2));
      continue;
    }
    buffer.resize(status == ERROR_SUCCESS ? length : 0);
    return status == ERROR_SUCCESS;
  }
}

}  // namespace

std::optional<std::vector<std::string>> Win32Registry::sub_keys(Hive hive, const std::string& key,
                                                                KeyAccess access) const {
  const RegistryKey opened = RegistryKey::open(hive, key, static_cast<REGSAM>(access));
  if (!opened.is_open()) return std::nullopt;
  std::vector<std::string> names;
  for (DWORD index = 0;; ++index) {
    wchar_t name[kKeyNameLimit];
    DWORD length = kKeyNameLimit;
    if (RegEnumKeyExW(opened.get(), index, name, &length, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      return names;
    }
    names.push_back(narrow({name, length}));
  }
}

std::optional<std::vector<NamedRegistryValue>> Win32Registry::values(Hive hive,
                                                                     const std::string& key,
                                                                     KeyAccess access) const {
  const RegistryKey opened = RegistryKey::open(hive, key, static_cast<REGSAM>(access));
  if (!opened.is_open()) return std::nullopt;
  std::vector<NamedRegistryValue> values;
  std::wstring name(kValueNameLimit, L'\0');
  for (DWORD index = 0;; ++index) {
    DWORD name_length = 0;
    DWORD type = 0;
    std::string data;
    const bool is_there = read_growing(data, [&](BYTE* buffer, DWORD* length) {
      name_length = kValueNameLimit;
      return RegEnumValueW(opened.get(), index, name.data(), &name_length, nullptr, &type, buffer,
                           length);
    });
    if (!is_there) return values;
    values.push_back({narrow(std::wstring_view(name).substr(0, name_length)),
                      value_from_windows(static_cast<RegistryType>(type), std::move(data))});
  }
}

std::optional<RegistryValue> Win32Registry::value(Hive hive, const std::string& key,
                                                  const std::string& name, KeyAccess access) const {
  const RegistryKey opened = RegistryKey::open(hive, key, static_cast<REGSAM>(access));
  if (!opened.is_open()) return std::nullopt;
  const std::wstring wide_name = widen(name);
  DWORD type = 0;
  std::string data;
  const bool is_there = read_growing(data, [&](BYTE* buffer, DWORD* length) {
    return RegQueryValueExW(opened.get(), wide_name.c_str(), nullptr, &type, buffer, length);
  });
  if (!is_there) return std::nullopt;
  return value_from_windows(static_cast<RegistryType>(type), std::move(data));
}

bool Win32Registry::create_key(Hive hive, const std::string& key) {
  return RegistryKey::create(hive, key, static_cast<REGSAM>(KeyAccess::kSettings)).is_open();
}

bool Win32Registry::set_value(Hive hive, const std::string& key, const std::string& name,
                              const RegistryValue& value) {
  const RegistryKey opened = RegistryKey::open(hive, key, KEY_WRITE);
  if (!opened.is_open()) return false;
  const std::string bytes = bytes_for_windows(value);
  // Windows looks at the unit behind a text without a terminator, and would store it too if it is
  // zero. With another one there, exactly what was given is stored.
  const std::string guarded = bytes + "##";
  return RegSetValueExW(opened.get(), widen(name).c_str(), 0, static_cast<DWORD>(value.type),
                        reinterpret_cast<const BYTE*>(guarded.data()),
                        static_cast<DWORD>(bytes.size())) == ERROR_SUCCESS;
}

}  // namespace quillvane
