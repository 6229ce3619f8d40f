#include "view/console/script/script_words.h"

#include <gtest/gtest.h>

#include "view/console/script/script_error.h"

namespace quillvane {
namespace {

struct SplitCase {
  std::string_view line;
  ScriptWords words;
};

TEST(ScriptWords, AreSplitAtBlanksAndKeptWholeInQuotes) {
  const SplitCase cases[] = {
      {"", {}},
      {"  \t ", {}},
      {"start", {"start"}},
      {"  click   Form7.cmd_start\t5 ", {"click", "Form7.cmd_start", "5"}},
      {"exists \"C:\\Program Files\\a.tmp\"", {"exists", "C:\\Program Files\\a.tmp"}},
      {"type Form7.Text9 \"\"", {"type", "Form7.Text9", ""}},
      // A backslash stands for itself, also before another one.
      {"x \"C:\\\\a\\b\"", {"x", "C:\\\\a\\b"}},
      {"x C:\\Temp\\", {"x", "C:\\Temp\\"}},
      // Only before a quote it makes the quote a character of the word.
      {"x \"say \\\"yes\\\" now\"", {"x", "say \"yes\" now"}},
      {"x \"\\\"\"", {"x", "\""}},
      // A quote inside a plain word opens nothing.
      {"echo it\"s here", {"echo", "it\"s", "here"}},
      // Lines of a script written on Windows.
      {"get Form7.Label11.Caption\r", {"get", "Form7.Label11.Caption"}},
      {"echo \"a b\"\r", {"echo", "a b"}},
      {"echo \xC3\xA4 \"\xFF \"", {"echo", "\xC3\xA4", "\xFF "}},
  };
  for (const SplitCase& c : cases) {
    EXPECT_EQ(split_words(c.line), c.words) << c.line;
  }
}

struct BrokenCase {
  std::string_view line;
  std::string_view why;
};

TEST(ScriptWords, AQuoteThatDoesNotCloseItsWordIsAnError) {
  const BrokenCase cases[] = {
      {"exists \"C:\\Temp", "a quoted word has no closing quote"},
      // The backslash takes the quote's meaning away.
      {"exists \"C:\\Temp\\\"", "a quoted word has no closing quote"},
      {"echo \"", "a quoted word has no closing quote"},
      {"echo \"a\"b", "a blank is missing behind a closing quote"},
      {"echo \"a\"\"b\"", "a blank is missing behind a closing quote"},
  };
  for (const BrokenCase& c : cases) {
    try {
      const ScriptWords words = split_words(c.line);
      ADD_FAILURE() << c.line << ": gave " << words.size() << " words";
    } catch (const ScriptError& error) {
      EXPECT_EQ(error.what(), c.why) << c.line;
    }
  }
}

TEST(ScriptWords, ALineHasTenThousandOfThem) {
  std::string line;
  for (int i = 0; i < 10'000; ++i) line += "at ";
  EXPECT_EQ(split_words(line).size(), 10'000U);
  EXPECT_THROW((void)split_words(line + "at"), ScriptError);
}

}  // namespace
}  // namespace quillvane
