#include "platform/win32/registry_key.h"

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

constexpr wchar_t kKeyClass[] = L"1";  // of every key that the program makes

HKEY root_key(Hive hive) {
  switch (hive) {
    case Hive::kClassesRoot:
      return HKEY_CLASSES_ROOT;
    case Hive::kCurrentUser:
      return HKEY_CURRENT_USER;
    case Hive::kLocalMachine:
      return HKEY_LOCAL_MACHINE;
    case Hive::kUsers:
      return HKEY_USERS;
  }
  return nullptr;
}

// A backslash at the end of a key path is ignored.
std::wstring key_path(const std::string& key) {
  std::wstring path = widen(key);
  while (!path.empty() && path.back() == L'\\') path.pop_back();
  return path;
}

}  // namespace

RegistryKey RegistryKey::open(Hive hive, const std::string& key, REGSAM access) {
  HKEY opened = nullptr;
  const LSTATUS status = RegOpenKeyExW(root_key(hive), key_path(key).c_str(), 0, access, &opened);
  return {status == ERROR_SUCCESS ? opened : nullptr, status};
}

RegistryKey RegistryKey::create(Hive hive, const std::string& key, REGSAM access) {
  HKEY opened = nullptr;
  std::wstring key_class = kKeyClass;
  const LSTATUS status = RegCreateKeyExW(root_key(hive), key_path(key).c_str(), 0, key_class.data(),
                                         0, access, nullptr, &opened, nullptr);
  return {status == ERROR_SUCCESS ? opened : nullptr, status};
}

}  // namespace quillvane
