// The fixed words of registration files, and their texts in UTF-16.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/registry.h"

namespace quillvane {

inline constexpr std::string_view kRegHeader5 = "Windows Registry Editor Version 5.00";
inline constexpr std::string_view kRegHeader4 = "REGEDIT4";

// "HKEY_LOCAL_MACHINE" and its like.
[[nodiscard]] std::string_view hive_name(Hive hive);

// Hive and key of a whole path ("HKEY_CURRENT_USER\Software"); nothing for an unknown root. The key
// is empty for the hive itself. HKEY_CURRENT_CONFIG is a part of HKEY_LOCAL_MACHINE, as on Windows.
[[nodiscard]] std::optional<std::pair<Hive, std::string>> hive_and_key(std::string_view path);

// Whether the bytes of this type are text, which Windows keeps in UTF-16.
[[nodiscard]] bool is_text_type(RegistryType type);

// UTF-16LE bytes to UTF-8 and back. Bytes that are no UTF-8 are lone low surrogates from U+DC80 to
// U+DCFF on the other side; other lone surrogates become U+FFFD. Half a unit at the end is dropped.
[[nodiscard]] std::string text_from_reg_units(std::string_view units);
[[nodiscard]] std::string reg_units_from_text(std::string_view text);

}  // namespace quillvane
