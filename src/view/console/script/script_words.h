// The words of a script line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillvane {

using ScriptWords = std::vector<std::string>;

inline constexpr std::size_t kMostScriptWords = 10'000;  // of a line

// Splits a line at blanks. A word in double quotes may hold blanks; in it \" is a quote and every
// other backslash stands for itself, so that Windows paths need no doubling. A quote inside a word
// that did not begin with one is a character like any other. Throws ScriptError when a quoted word
// isn't closed or something follows its closing quote directly.
[[nodiscard]] ScriptWords split_words(std::string_view line);

}  // namespace quillvane
