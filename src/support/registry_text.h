// Settings as texts in the registry. All of the program's settings are strings; numbers are read
// back by Val, so that an absent value counts as 0.
#pragma once

#include <string>
#include <string_view>

#include "platform/registry.h"

namespace quillvane {

struct RegistryText {
  bool read = false;  // a value was read, of whatever type
  std::string text;   // empty otherwise
  // Why it could not be read; empty also where there is none. What was not read is not written
  // back.
  std::string problem;
};

// A setting of the system, in the 64-bit half of the registry. Text values give their text. Numbers
// give "&h" and the hexadecimal digits of their bytes from the last to the first, each without
// leading zeros; a last byte of 0 has been dropped before. Other types give an empty text. A value
// of 1024 bytes or more reads as absent.
[[nodiscard]] RegistryText ReadRegistryString(const Registry& registry, Hive hive,
                                              const std::string& key, const std::string& name);

// The same of the half that a program of this width sees, which WriteRegistryString writes to: for
// the program's own settings.
[[nodiscard]] RegistryText ReadRegistryString32(const Registry& registry, Hive hive,
                                                const std::string& key, const std::string& name);

// Writes a text, making the key and those above it.
RegistryWrite WriteRegistryString(Registry& registry, Hive hive, const std::string& key,
                                  const std::string& name, std::string_view text);

}  // namespace quillvane
