// Results as JSON.
#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace quillvane {

// Keeps the keys in the order in which they were written.
using Json = nlohmann::ordered_json;

// A value in one line. Bytes that are no UTF-8 become U+FFFD; what could upset a terminal stands as
// an escape (\u202e), so that the document means the same and shows nothing else than it says.
[[nodiscard]] std::string json_text(const Json& value);

// A number of the program, all of which are doubles there; whole ones get no point.
[[nodiscard]] Json json_number(double number);

}  // namespace quillvane
