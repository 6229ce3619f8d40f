// Compares what a script printed with what was expected.
//
// What is expected is written as JSON values one after the other, over as many lines as reads well;
// lines that begin with "#" are remarks. Values must be equal, the order of keys included, but:
//   "<date>"             any date as the lists show it
//   {..., "...": true}   further keys may follow
//   [..., "...", ...]    in a list, any number of other items
#pragma once

#include <string>
#include <vector>

#include "view/console/json_text.h"

namespace quillvane {

// The values of a text; throws what the JSON library throws when they are none.
[[nodiscard]] std::vector<Json> expected_values(const std::string& text);

// The values that a script printed, one a line. A line that is none fails by throwing too.
[[nodiscard]] std::vector<Json> printed_values(const std::string& output);

[[nodiscard]] bool matches(const Json& expected, const Json& printed);

// What differs, in words; empty when everything matches.
[[nodiscard]] std::string difference(const std::vector<Json>& expected,
                                     const std::vector<Json>& printed);

}  // namespace quillvane
