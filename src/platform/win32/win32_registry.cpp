#include "platform/win32/win32_registry.h"

#include <windows.h>

#include <algorithm>
#include <system_error>
#include <utility>

#include "platform/win32/registry_data.h"
#include "platform/win32/registry_key.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

// Longest names that a registry takes, with the terminator.
constexpr DWORD kKeyNameLimit = 256;
constexpr DWORD kValueNameLimit = 16384;

constexpr std::size_t kFirstDataBytes = 1024;

// What Windows says of a failure.
std::string reason(LSTATUS status) {
  std::string text = std::system_category().message(static_cast<int>(status));
  while (!text.empty() && (text.back() == '.' || text.back() == ' ')) text.pop_back();
  return text;
}

// A key that goes while it is read is not there.
bool is_absent(LSTATUS status) {
  return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND ||
         status == ERROR_KEY_DELETED;
}

// The answer to a read that gave nothing.
template <typename T>
RegistryRead<T> nothing_read(LSTATUS status) {
  if (is_absent(status)) return std::nullopt;
  return RegistryRead<T>::failure("the registry cannot be read: " + reason(status));
}

RegistryWrite answer_of_write(LSTATUS status) {
  if (status == ERROR_SUCCESS) return {};
  return RegistryWrite::failure("the registry cannot be written: " + reason(status));
}

// Calls `read(buffer, length)` with a buffer that grows until the data fit; `length` goes in as the
// room and comes out as the length. Answers the last call's status. The data may have grown between
// two calls, so one larger try is not enough.
template <typename Read>
LSTATUS read_growing(std::string& buffer, Read read) {
  buffer.resize(kFirstDataBytes);
  for (;;) {
    auto length = static_cast<DWORD>(buffer.size());
    const LSTATUS status = read(reinterpret_cast<BYTE*>(buffer.data()), &length);
    if (status == ERROR_MORE_DATA) {
      buffer.resize(std::max<std::size_t>(length, buffer.size() * 2));
      continue;
    }
    buffer.resize(status == ERROR_SUCCESS ? length : 0);
    return status;
  }
}

}  // namespace

RegistryRead<std::vector<std::string>> Win32Registry::sub_keys(Hive hive, const std::string& key,
                                                               KeyAccess access) const {
  using Names = std::vector<std::string>;
  const RegistryKey opened = RegistryKey::open(hive, key, static_cast<REGSAM>(access));
  if (!opened.is_open()) return nothing_read<Names>(opened.status());
  Names names;
  for (DWORD index = 0;; ++index) {
    wchar_t name[kKeyNameLimit];
    DWORD length = kKeyNameLimit;
    const LSTATUS status =
        RegEnumKeyExW(opened.get(), index, name, &length, nullptr, nullptr, nullptr, nullptr);
    if (status == ERROR_NO_MORE_ITEMS) return names;
    if (status != ERROR_SUCCESS) return nothing_read<Names>(status);
    names.push_back(narrow({name, length}));
  }
}

RegistryRead<std::vector<NamedRegistryValue>> Win32Registry::values(Hive hive,
                                                                    const std::string& key,
                                                                    KeyAccess access) const {
  using Values = std::vector<NamedRegistryValue>;
  const RegistryKey opened = RegistryKey::open(hive, key, static_cast<REGSAM>(access));
  if (!opened.is_open()) return nothing_read<Values>(opened.status());
  Values values;
  std::wstring name(kValueNameLimit, L'\0');
  for (DWORD index = 0;; ++index) {
    DWORD name_length = 0;
    DWORD type = 0;
    std::string data;
    const LSTATUS status = read_growing(data, [&](BYTE* buffer, DWORD* length) {
      name_length = kValueNameLimit;
      return RegEnumValueW(opened.get(), index, name.data(), &name_length, nullptr, &type, buffer,
                           length);
    });
    if (status == ERROR_NO_MORE_ITEMS) return values;
    if (status != ERROR_SUCCESS) return nothing_read<Values>(status);
    values.push_back({narrow(std::wstring_view(name).substr(0, name_length)),
                      value_from_windows(static_cast<RegistryType>(type), std::move(data))});
  }
}

RegistryRead<RegistryValue> Win32Registry::value(Hive hive, const std::string& key,
                                                 const std::string& name, KeyAccess access) const {
  const RegistryKey opened = RegistryKey::open(hive, key, static_cast<REGSAM>(access));
  if (!opened.is_open()) return nothing_read<RegistryValue>(opened.status());
  const std::wstring wide_name = widen(name);
  DWORD type = 0;
  std::string data;
  const LSTATUS status = read_growing(data, [&](BYTE* buffer, DWORD* length) {
    return RegQueryValueExW(opened.get(), wide_name.c_str(), nullptr, &type, buffer, length);
  });
  if (status != ERROR_SUCCESS) return nothing_read<RegistryValue>(status);
  return value_from_windows(static_cast<RegistryType>(type), std::move(data));
}

RegistryWrite Win32Registry::create_key(Hive hive, const std::string& key) {
  return answer_of_write(
      RegistryKey::create(hive, key, static_cast<REGSAM>(KeyAccess::kSettings)).status());
}

RegistryWrite Win32Registry::set_value(Hive hive, const std::string& key, const std::string& name,
                                       const RegistryValue& value) {
  const RegistryKey opened = RegistryKey::open(hive, key, KEY_WRITE);
  if (!opened.is_open()) return answer_of_write(opened.status());
  const std::string bytes = bytes_for_windows(value);
  // Windows looks at the unit behind a text without a terminator, and would store it too if it is
  // zero. With another one there, exactly what was given is stored.
  const std::string guarded = bytes + "##";
  return answer_of_write(RegSetValueExW(
      opened.get(), widen(name).c_str(), 0, static_cast<DWORD>(value.type),
      reinterpret_cast<const BYTE*>(guarded.data()), static_cast<DWORD>(bytes.size())));
}

RegistryWrite Win32Registry::remove_value(Hive hive, const std::string& key,
                                          const std::string& name) {
  const RegistryKey opened = RegistryKey::open(hive, key, KEY_SET_VALUE);
  const LSTATUS status =
      opened.is_open() ? RegDeleteValueW(opened.get(), widen(name).c_str()) : opened.status();
  return is_absent(status) ? RegistryWrite() : answer_of_write(status);
}

}  // namespace quillvane
