#include "view/console/script/script_reader.h"

#include <gtest/gtest.h>

#include <istream>
#include <sstream>
#include <streambuf>
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

// A file on a disk that fails behind this text.
class FailingFile final : public std::stringbuf {
 public:
  explicit FailingFile(const std::string& text) : std::stringbuf(text, std::ios::in) {}

 protected:
  int_type underflow() override {
    const int_type next = std::stringbuf::underflow();
    if (next == traits_type::eof()) throw std::ios_base::failure("the disk fails");
    return next;
  }
};

TEST(ScriptReader, WhereTheSourceFailsIsNoEndAndNoLine) {
  for (const char* text : {"start\n# two\n", "start\n# two\nclick Form7.cmd_cl"}) {
    FailingFile file(text);
    std::istream source(&file);
    ScriptReader reader(source);
    EXPECT_EQ(reader.next(), (ScriptLine{1, "start"}));
    EXPECT_EQ(reader.unread_line(), std::nullopt);

    EXPECT_EQ(reader.next(), std::nullopt);

    EXPECT_EQ(reader.unread_line(), 3);
  }
}

TEST(ScriptReader, NothingIsUnreadAtTheEnd) {
  std::istringstream source("start\n");
  ScriptReader reader(source);
  (void)reader.next();
  EXPECT_EQ(reader.next(), std::nullopt);
  EXPECT_EQ(reader.unread_line(), std::nullopt);
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
