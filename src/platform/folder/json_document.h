// JSON texts that come from outside, read so that none can take more memory or stack than its
// length is worth.
#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace quillvane {

// What makes a text more than any document of the program ever is: lists and objects 32 deep, or
// two million values. Nothing when it is neither. Told from the text alone, before it is read.
[[nodiscard]] std::optional<std::string> json_excess(std::string_view text);

// The document, or what is wrong with it in one line; a key that an object has twice is wrong too,
// as nobody could tell which of the two counts.
[[nodiscard]] std::variant<nlohmann::json, std::string> read_json(std::string_view text);

}  // namespace quillvane
