// Fills a machine for demonstrations: believable junk in each of the categories, and beside it
// files that must be left alone. The same at each call.
#pragma once

#include <optional>
#include <string>

namespace quillvane {

// `dir` holds a machine that was just created. Answers what went wrong.
[[nodiscard]] std::optional<std::string> fill_demo_machine(const std::string& dir);

}  // namespace quillvane
