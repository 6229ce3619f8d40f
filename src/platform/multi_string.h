// The data of a multi-string value: each string with its NUL, and one NUL at the end of the list.
//
// The pending-rename queue holds empty strings inside and at its end, and they matter. So nothing
// here stops at the first empty string: every string that was put in comes out again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

[[nodiscard]] std::string multi_string_data(const std::vector<std::string>& strings);

// Terminators that are missing at the end are taken as there.
[[nodiscard]] std::vector<std::string> multi_string_list(std::string_view data);

}  // namespace quillvane
