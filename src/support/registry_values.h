// Registry values of any type, and lists of keys and values, as the category routines read them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/file_system.h"
#include "platform/registry.h"

namespace quillvane {

// The bytes of a binary value.
struct RegistryBytes {
  std::string data;

  friend bool operator==(const RegistryBytes&, const RegistryBytes&) = default;
};

// A text (types 1, 2 and 7), a number (type 4) or bytes (type 3).
using RegistryContent = std::variant<std::string, std::uint32_t, RegistryBytes>;

// The value; nothing when key or value are missing, cannot be read, or have another type. Texts
// come without their terminator.
[[nodiscard]] std::optional<RegistryContent> GetRegistryValue(const Registry& registry, Hive hive,
                                                              const std::string& key,
                                                              const std::string& name);

// Writes a value of an existing key: a text as type 1, a number as type 4, bytes as type 3. The key
// is not made. True on success.
bool SetRegistryValue(Registry& registry, Hive hive, const std::string& key,
                      const std::string& name, const RegistryContent& content);

// Where a list of values is read from: a hive of the registry, or an INI file.
struct NoHive {};
struct IniFile {};
using HiveOrFile = std::variant<NoHive, Hive, IniFile>;

// "HKCU", "HKLM", "HKU" and "HKCR" in any case are hives; any other name that is an existing file
// is an INI file.
[[nodiscard]] HiveOrFile fHiveFromName(const FileSystem& files, const std::string& name);

struct ValueList {
  int status = 0;     // not 0: the list could not be begun
  std::string text;   // name "=" data of the text and number values, one behind the other; of an
                      // INI file the lines of the section, each ended by NUL
  std::string names;  // all value names, joined by ","
};

// The values of a key, or the section `sub_key` of an INI file. A value of more than 2048 bytes
// ends the list.
[[nodiscard]] ValueList fEnumValue(const Registry& registry, const FileSystem& files,
                                   const std::string& hive, const std::string& sub_key);

// The SID of the first loaded user hive in the registry's order, in lower case; empty without one.
// With several users signed in it need not be the current one: meant so.
[[nodiscard]] std::string GetHiveListSid(const Registry& registry, const FileSystem& files);

}  // namespace quillvane
