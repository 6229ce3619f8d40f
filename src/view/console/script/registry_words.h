// Registry values as a script writes and prints them.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/registry.h"
#include "view/console/json_text.h"

namespace quillvane {

// "HKLM", "HKCU", "HKCR" or "HKU", without regard to case. Throws ScriptError for anything else.
[[nodiscard]] Hive hive_named(std::string_view word);

// The value that the words behind the type stand for: "sz" and "expand" one text, "dword" a decimal
// number, "binary" hex digits, "multi" several texts. Throws ScriptError when they don't fit.
[[nodiscard]] RegistryValue registry_value_of(std::string_view type,
                                              std::span<const std::string> words);

// {"type", "value"}. Types that have no word are shown as binary.
[[nodiscard]] Json registry_json(const RegistryValue& value);

}  // namespace quillvane
