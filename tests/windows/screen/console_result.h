// What the console program finds on the same PC.
#pragma once

#include <string>

namespace quillvane {

// Runs "quillvane WORDS" and answers what it prints.
[[nodiscard]] std::string console_output(const std::wstring& words);

}  // namespace quillvane
