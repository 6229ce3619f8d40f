// The bytes of a registry value on either side of the border: texts are UTF-16 in Windows and UTF-8
// in the program, all other data are the same.
#pragma once

#include <string>

#include "platform/registry.h"

namespace quillvane {

[[nodiscard]] RegistryValue value_from_windows(RegistryType type, std::string bytes);

[[nodiscard]] std::string bytes_for_windows(const RegistryValue& value);

}  // namespace quillvane
