// What is wrong with the words of a command line, in the program's own wording. The library that
// reads them has texts of its own, and lets pass what no user means: an option without a value in
// it ("--machine" "" from a script's empty variable), or given twice.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace quillvane {

// Looks at the words in the way `app` reads them, and answers the first thing that is off as
// "WHAT: WHY". Nothing when they are fine, or when they ask for help or the version first.
[[nodiscard]] std::optional<std::string> wrong_words(const CLI::App& app,
                                                     const std::vector<std::string>& words);

}  // namespace quillvane
