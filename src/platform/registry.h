// The registry of the machine.
//
// Key paths are written with backslashes ("Software\Quillvane"), a trailing one is ignored; case
// never matters in the names of keys and values. Data are the bytes that RegQueryValueExA gives:
// texts in the program's code page with the terminators that were stored, numbers in little-endian
// order. The value with the empty name is the key's default value.
// No call throws or shows a message. A read tells what is not there from what could not be read, a
// write why it did not take effect. Calls wait some seconds for another program's lock.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/registry_answer.h"

namespace quillvane {

enum class Hive { kClassesRoot, kCurrentUser, kLocalMachine, kUsers };

// Value types, as Windows numbers them. Other numbers occur and are passed through.
enum class RegistryType : std::uint32_t {
  kNone = 0,
  kSz = 1,
  kExpandSz = 2,
  kBinary = 3,
  kDword = 4,
  kDwordBigEndian = 5,
  kLink = 6,
  kMultiSz = 7,
  kResourceList = 8,
  kFullResourceDescriptor = 9,
  kResourceRequirementsList = 10,
  kQword = 11,
};

struct RegistryValue {
  RegistryType type = RegistryType::kNone;
  std::string data;

  friend bool operator==(const RegistryValue&, const RegistryValue&) = default;
};

struct NamedRegistryValue {
  std::string name;
  RegistryValue value;
};

// The rights that a key is opened with, in the numbers of RegOpenKeyEx. A key that does not grant
// all of them is not opened at all, so a routine that asks for more than it needs sees nothing
// where the user may only read. Where 0x100 is in the number, a 32-bit program on 64-bit Windows
// sees the 64-bit half of the registry. The machine folder grants everything and has one half.
enum class KeyAccess : std::uint32_t {
  kQueryValues = 0x1,
  kRead = 0x20019,
  kAll64 = 0x13F,             // all but changing the rights themselves
  kSettings = 0x2003F,        // the program's own settings
  kSystemSettings = 0x2013F,  // settings of the system
};

class Registry {
 public:
  virtual ~Registry() = default;

  // Names of the keys directly below, in the registry's order; absent when the key is.
  [[nodiscard]] virtual RegistryRead<std::vector<std::string>> sub_keys(
      Hive hive, const std::string& key, KeyAccess access = KeyAccess::kRead) const = 0;

  // Values in the registry's order; absent when the key is.
  [[nodiscard]] virtual RegistryRead<std::vector<NamedRegistryValue>> values(
      Hive hive, const std::string& key, KeyAccess access = KeyAccess::kRead) const = 0;

  // One value; absent when key or value are.
  [[nodiscard]] virtual RegistryRead<RegistryValue> value(
      Hive hive, const std::string& key, const std::string& name,
      KeyAccess access = KeyAccess::kRead) const = 0;

  // Makes the key and every missing one above it; done when it is there afterwards.
  virtual RegistryWrite create_key(Hive hive, const std::string& key) = 0;

  // Writes a value of an existing key, at one stroke. Fails when the key is missing or the rights
  // are.
  virtual RegistryWrite set_value(Hive hive, const std::string& key, const std::string& name,
                                  const RegistryValue& value) = 0;

  // Removes a value; done when it is not there afterwards.
  virtual RegistryWrite remove_value(Hive hive, const std::string& key,
                                     const std::string& name) = 0;
};

}  // namespace quillvane
