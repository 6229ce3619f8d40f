// The table of file types that comes with the program, for machines that are made with it.
#pragma once

#include <string_view>

namespace quillvane {

// The bytes of tmptype.orv.
[[nodiscard]] std::string_view factory_type_table();

}  // namespace quillvane
