#include "view/console/script/script_reader.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace quillvane {
namespace {

std::vector<ScriptLine> lines_of(const std::string& text) {
  std::istringstream source(text);
  ScriptReader reader(source);
  std::vector<ScriptLine> lines;
  while (auto line = reader.next()) lines.push_back(*line);
  return lines;
}

using Lines = std::vector<ScriptLine>;

TEST(ScriptReader, PassesOverBlankLinesAndCommentsButCountsThem) {
  EXPECT_EQ(lines_of("# a scan\n\nstart\n   \n\t# nothing\nended\n"),
            (Lines{{3, "start"}, {6, "ended"}}));
}

TEST(ScriptReader, TheLastLineNeedsNoEnd) {
  EXPECT_EQ(lines_of("start\nended"), (Lines{{1, "start"}, {2, "ended"}}));
}

TEST(ScriptReader, ANumberSignInsideALineIsNoComment) {
  EXPECT_EQ(lines_of("echo # 1"), (Lines{{1, "echo # 1"}}));
}

TEST(ScriptReader, AFileOfWindowsReadsTheSame) {
  EXPECT_EQ(lines_of("\xEF\xBB\xBF# mark\r\n\r\nended\r\n"), (Lines{{3, "ended\r"}}));
}

// As /dev/zero gives it.
TEST(ScriptReader, OfALineWithoutEndReadsTheBeginning) {
  std::istringstream source("ended\n" + std::string(3 * kLongestScriptLine, '\0'));
  ScriptReader reader(source);
  EXPECT_EQ(reader.next(), (ScriptLine{1, "ended"}));

  EXPECT_EQ(reader.next(), (ScriptLine{2, std::string(kLongestScriptLine + 1, '\0')}));
}

TEST(ScriptReader, AnEmptyScriptHasNoLines) { EXPECT_EQ(lines_of(""), Lines{}); }

TEST(ScriptReader, ReadsOnlyTheLineThatIsAskedFor) {
  std::istringstream source("start\nended\n");
  ScriptReader reader(source);

  (void)reader.next();

  std::string rest;
  std::getline(source, rest);
  EXPECT_EQ(rest, "ended");
}

}  // namespace
}  // namespace quillvane
