#include "support/error_trail.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillvane {
namespace {

class KeptLog final : public SystemEventLog {
 public:
  bool write(const std::string& server, const std::string& application, std::uint32_t event_id,
             std::uint16_t type, const std::string& text) override {
    sources.push_back(server + "/" + application + "/" + std::to_string(event_id) + "/" +
                      std::to_string(type));
    texts.push_back(text);
    return takes_entries;
  }

  std::vector<std::string> sources;
  std::vector<std::string> texts;
  bool takes_entries = true;
};

// What stands behind the heading, which ends in two line ends.
std::string behind_heading(const std::string& report) {
  const std::string last_line = "  RunTime Error in Cleaner\r\n\r\n";
  const std::size_t at = report.find(last_line);
  return at == std::string::npos ? "no heading in: " + report
                                 : report.substr(at + last_line.size());
}

const RuntimeError kOverflow{kOverflowError, "Quillvane", "Overflow"};

TEST(ErrorTrail, DumpListsTheLatestCallFirst) {
  KeptLog log;
  ErrorTrail trail(log, "Cleaner");
  trail.push("Search", "SearchFiles", "FilePath: C:\\Temp", "outer state");
  trail.push("Search", "StripNull", "name", "inner state");

  EXPECT_EQ(trail.dump(),
            "\tModule:   Search\r\n"
            "\tMethod:   StripNull(name)\r\n"
            "\tGlobal:   inner state\r\n"
            "\r\n"
            "\tModule:   Search\r\n"
            "\tMethod:   SearchFiles(FilePath: C:\\Temp)\r\n"
            "\tGlobal:   outer state\r\n"
            "\r\n");
}

TEST(ErrorTrail, PopTakesTheLatestCall) {
  KeptLog log;
  ErrorTrail trail(log, "Cleaner");
  trail.push("Search", "outer", "", "");
  trail.push("Search", "inner", "", "");
  trail.pop();

  EXPECT_EQ(trail.dump(),
            "\tModule:   Search\r\n"
            "\tMethod:   outer()\r\n"
            "\tGlobal:   \r\n"
            "\r\n");
}

TEST(ErrorTrail, PopOnAnEmptyStackIsHarmless) {
  KeptLog log;
  ErrorTrail trail(log, "Cleaner");
  trail.pop();
  trail.pop();
  EXPECT_EQ(trail.dump(), "");

  trail.push("Search", "SearchFiles", "", "");
  EXPECT_EQ(trail.dump().substr(0, 17), "\tModule:   Search");
}

TEST(ErrorTrail, ReportTellsErrorPlaceAndCallStack) {
  KeptLog log;
  ErrorTrail trail(log, "Cleaner");
  trail.push("Search", "SearchFiles", "FilePath: C:\\Temp, FileName: *.*, Recursive: True", "");

  trail.report("Search", "SearchFiles", 40, kOverflow);

  ASSERT_EQ(log.texts.size(), 1U);
  EXPECT_EQ(behind_heading(log.texts[0]),
            "RunTime Error: 6 - Quillvane\r\n"
            "\tModule: Search\r\n"
            "\tMethod: SearchFiles\r\n"
            "\tLine Number: 40\r\n"
            "\tDescription: :Overflow\r\n"
            "\r\n"
            "Call Stack:\r\n"
            "\tModule:   Search\r\n"
            "\tMethod:   SearchFiles(FilePath: C:\\Temp, FileName: *.*, Recursive: True)\r\n"
            "\tGlobal:   \r\n"
            "\r\n");
}

TEST(ErrorTrail, ReportBeginsWithALineOfOneCharacter) {
  KeptLog log;
  ErrorTrail trail(log, "Cleaner");
  trail.report("Search", "SearchFiles", 0, kOverflow);

  ASSERT_EQ(log.texts.size(), 1U);
  const std::string& report = log.texts[0];
  ASSERT_EQ(report.substr(0, 4), "\r\n\r\n");
  const std::string line = report.substr(4, report.find("\r\n", 4) - 4);
  EXPECT_GT(line.size(), 1U);
  EXPECT_EQ(line, std::string(line.size(), line[0]));
  EXPECT_EQ(report.substr(4 + line.size(), 30), "\r\n  RunTime Error in Cleaner\r\n");
}

TEST(ErrorTrail, ReportWithoutCallsEndsInTheHeadOfTheStack) {
  KeptLog log;
  ErrorTrail trail(log, "Cleaner");
  trail.report("Search", "SearchFiles", 0, kOverflow);

  ASSERT_EQ(log.texts.size(), 1U);
  EXPECT_TRUE(log.texts[0].ends_with("\r\n\r\nCall Stack:\r\n")) << log.texts[0];
}

TEST(ErrorTrail, ReportIsAnErrorWithId5000) {
  KeptLog log;
  ErrorTrail trail(log, "Cleaner");
  trail.report("Search", "SearchFiles", 0, kOverflow);
  EXPECT_EQ(log.sources, (std::vector<std::string>{"/Cleaner/5000/1"}));
}

TEST(ErrorTrail, ALogThatTakesNoEntryIsPassedOver) {
  KeptLog log;
  log.takes_entries = false;
  ErrorTrail trail(log, "Cleaner");
  trail.push("Search", "SearchFiles", "", "");
  const std::string before = trail.dump();

  trail.report("Search", "SearchFiles", 0, kOverflow);

  EXPECT_EQ(log.texts.size(), 1U);
  EXPECT_EQ(trail.dump(), before);
}

}  // namespace
}  // namespace quillvane
