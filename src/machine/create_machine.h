// Makes new machine folders.
#pragma once

#include <functional>
#include <optional>
#include <string>

namespace quillvane {

// Puts more onto a machine that was just made; answers what went wrong.
using FillMachine = std::function<std::optional<std::string>(const std::string& dir)>;

// Makes a machine with nothing on it: the folders of Windows, of its user and of the program, and
// the registry's usual keys; then `fill`, if there is one. `dir` is made when it is missing and
// must be empty. Answers what went wrong; then nothing is left of it.
[[nodiscard]] std::optional<std::string> create_machine(const std::string& dir,
                                                        const FillMachine& fill = nullptr);

}  // namespace quillvane
