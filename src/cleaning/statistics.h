// How much was cleaned over the program's life.
#pragma once

#include <string_view>

#include "platform/registry.h"

namespace quillvane {

// Adds the numbers that the two texts begin with to the counts of files and bytes in the registry.
// A count that could not be read is not begun anew: then neither is written.
RegistryWrite add_to_statistics(Registry& registry, std::string_view files, std::string_view bytes);

}  // namespace quillvane
