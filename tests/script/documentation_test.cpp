// The examples of the documents: each ```console block is run and must print what it shows.
//
// "$ " begins a line for the shell, "> " goes on with it; what follows is its output, problems
// included. "..." stands for anything within a line, and alone for any number of lines. The blocks
// of one document follow each other in one folder.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "tests/support/temp_folder.h"

namespace quillvane {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

struct Example {
  std::string command;
  Lines output;
};

std::vector<Example> examples_of(const fs::path& document) {
  std::vector<Example> examples;
  std::ifstream file(document);
  bool inside = false;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("```")) {
      inside = !inside && line == "```console";
    } else if (!inside) {
      continue;
    } else if (line.starts_with("$ ")) {
      examples.push_back({line.substr(2), {}});
    } else if (examples.empty()) {
      ADD_FAILURE() << "no command stands before: " << line;
    } else if (line.starts_with("> ") && examples.back().output.empty()) {
      examples.back().command += "\n" + line.substr(2);
    } else {
      examples.back().output.push_back(line);
    }
  }
  return examples;
}

// Whether the texts between the dots follow each other, the first at the begin, the last at the
// end.
bool line_matches(const std::string& shown, const std::string& printed) {
  constexpr std::string_view kDots = "...";
  std::size_t at = 0;
  std::size_t begin = 0;
  for (std::size_t dots = shown.find(kDots); dots != std::string::npos;
       dots = shown.find(kDots, begin)) {
    const std::string part = shown.substr(begin, dots - begin);
    const std::size_t found = printed.find(part, at);
    if (found == std::string::npos || (begin == 0 && found != 0)) return false;
    at = found + part.size();
    begin = dots + kDots.size();
  }
  const std::string rest = shown.substr(begin);
  if (begin == 0) return printed == rest;
  return printed.size() >= at + rest.size() && printed.ends_with(rest);
}

bool output_matches(const Lines& shown, std::size_t i, const Lines& printed, std::size_t k) {
  if (i == shown.size()) return k == printed.size();
  if (shown[i] == "...") {
    for (std::size_t next = k; next <= printed.size(); ++next) {
      if (output_matches(shown, i + 1, printed, next)) return true;
    }
    return false;
  }
  return k < printed.size() && line_matches(shown[i], printed[k]) &&
         output_matches(shown, i + 1, printed, k + 1);
}

std::string joined(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

// Runs lines of the shell in one folder, with the program on the path and a home of its own.
class Shell {
 public:
  Shell() { folder_.make_folder("here"); }

  Lines run(const std::string& command) {
    folder_.write("line", "cd '" + folder_.path() + "/here'\n" + command + "\n");
    const std::string program_folder = fs::path(QUILLVANE_PROGRAM).parent_path();
    const std::string call = "env -u QUILLVANE_MACHINE PATH='" + program_folder +
                             "':\"$PATH\" HOME='" + folder_.path() + "' XDG_DATA_HOME='" +
                             folder_.path() + "/data' sh '" + folder_.path() + "/line' >'" +
                             folder_.path() + "/out' 2>&1 </dev/null";
    static_cast<void>(system(call.c_str()));  // a status that matters is shown by the example
    std::istringstream text(folder_.read("out").value_or(""));
    Lines lines;
    for (std::string line; std::getline(text, line);) lines.push_back(line);
    return lines;
  }

 private:
  TempFolder folder_;
};

class Documentation : public testing::TestWithParam<const char*> {};

TEST_P(Documentation, ShowsWhatItsExamplesPrint) {
  const std::vector<Example> examples = examples_of(fs::path(QUILLVANE_SOURCE) / GetParam());
  ASSERT_FALSE(examples.empty());
  Shell shell;
  for (const Example& example : examples) {
    const Lines printed = shell.run(example.command);
    EXPECT_TRUE(output_matches(example.output, 0, printed, 0))
        << "$ " << example.command << "\nprints\n"
        << joined(printed) << "and is shown with\n"
        << joined(example.output);
  }
}

INSTANTIATE_TEST_SUITE_P(Of, Documentation,
                         testing::Values("README.md", "docs/console.md", "docs/scripting.md"),
                         [](const auto& name) { return fs::path(name.param).stem().string(); });

TEST(DocumentationExamples, MatchOnlyWhatTheyShow) {
  const auto matches = [](const Lines& shown, const Lines& printed) {
    return output_matches(shown, 0, printed, 0);
  };
  EXPECT_TRUE(matches({}, {}));
  EXPECT_FALSE(matches({}, {"a"}));
  EXPECT_FALSE(matches({"a"}, {}));
  EXPECT_TRUE(matches({"a", "...", "d"}, {"a", "b", "c", "d"}));
  EXPECT_TRUE(matches({"a", "...", "d"}, {"a", "d"}));
  EXPECT_FALSE(matches({"a", "...", "d"}, {"a", "b"}));
  EXPECT_FALSE(matches({"a", "..."}, {"b", "a"}));
  EXPECT_TRUE(matches({"a...c"}, {"abc"}));
  EXPECT_TRUE(matches({"a...c..."}, {"ac"}));
  EXPECT_FALSE(matches({"a...c"}, {"abcd"}));
  EXPECT_FALSE(matches({"b...c"}, {"abc"}));
  EXPECT_FALSE(matches({"a...bc...c"}, {"abc"}));
}

}  // namespace
}  // namespace quillvane
