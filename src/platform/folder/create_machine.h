// Makes new machine folders.
#pragma once

#include <optional>
#include <string>

namespace quillvane {

// Makes a machine with nothing on it: the folders of Windows, of its user and of the program, and
// the registry's usual keys. `dir` is made when it is missing and must be empty. Answers what went
// wrong.
[[nodiscard]] std::optional<std::string> create_machine(const std::string& dir);

}  // namespace quillvane
