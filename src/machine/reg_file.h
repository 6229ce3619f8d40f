// Registration files: the text form of a registry that regedit writes and reads, "Windows Registry
// Editor Version 5.00", and the older "REGEDIT4".
//
// A file is UTF-16LE with byte order mark, as regedit writes it, or UTF-8 with or without one. In
// version 5 the bytes of texts in hex form are UTF-16LE; in REGEDIT4 they are as they stand.
//
// What the text form cannot hold is written in hex: a text without terminator, with more than
// one, with control characters. Bytes that are no UTF-8 become lone low surrogates (0x80 is
// U+DC80) and come back as they were. So what is exported and imported again is the same registry.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/folder/registry_store.h"
#include "platform/registry.h"

namespace quillvane {

struct RegValueChange {
  std::string name;
  std::optional<RegistryValue> value;  // nothing removes the value

  friend bool operator==(const RegValueChange&, const RegValueChange&) = default;
};

// One section of a file: a key and what becomes of its values.
struct RegKeyChange {
  std::size_t line = 0;  // where the section begins, from 1
  Hive hive = Hive::kLocalMachine;
  std::string key;      // never empty when the key is removed
  bool remove = false;  // with all below it; then there are no values
  std::vector<RegValueChange> values;

  friend bool operator==(const RegKeyChange&, const RegKeyChange&) = default;
};

// Reads a whole file; the text is what is wrong in it: "line 7: the text has no closing quote".
[[nodiscard]] std::variant<std::vector<RegKeyChange>, std::string> parse_reg_file(
    std::string_view bytes);

// Makes all changes of a file, or none: then it answers what is wrong.
[[nodiscard]] std::optional<std::string> import_reg_file(FolderRegistry& registry,
                                                         std::string_view bytes);

// The whole registry as a version 5 file in UTF-8, its lines ended by CR LF. Nothing when it cannot
// be read whole.
[[nodiscard]] std::optional<std::string> export_reg_file(const Registry& registry);

}  // namespace quillvane
