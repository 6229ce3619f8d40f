#include "tests/script/expected_output.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

struct MatchCase {
  const char* expected;
  const char* printed;
  bool matches;
};

TEST(ExpectedOutput, MatchesOnlyWhatItSays) {
  const MatchCase cases[] = {
      {"1", "1", true},
      {"1", "2", false},
      {"1", "\"1\"", false},
      {"null", "false", false},
      {R"({"a":1,"b":2})", R"({"a":1,"b":2})", true},
      {R"({"a":1,"b":2})", R"({"b":2,"a":1})", false},
      {R"({"a":1})", R"({"a":1,"b":2})", false},
      {R"({"a":1,"b":2})", R"({"a":1})", false},
      {R"({"b":2,"...":true})", R"({"a":1,"b":2,"c":3})", true},
      {R"({"b":3,"...":true})", R"({"a":1,"b":2,"c":3})", false},
      {R"({"d":2,"...":true})", R"({"a":1,"b":2,"c":3})", false},
      {"[1,2]", "[1,2]", true},
      {"[1,2]", "[1,2,3]", false},
      {"[1,2]", "[2,1]", false},
      {"[]", "[]", true},
      {R"([1,"..."])", "[1,2,3]", true},
      {R"(["...",3])", "[1,2,3]", true},
      {R"(["...",2])", "[1,2,3]", false},
      {R"(["...",1,"...",3])", "[1,2,3]", true},
      {R"(["...",3,"...",1,"..."])", "[1,2,3]", false},
      {R"(["..."])", "[]", true},
      {R"(["...",[4]])", "[1,[3],[4]]", true},
      {"\"<date>\"", "\"3/7/2013 9:05:00 AM\"", true},
      {"\"<date>\"", "\"12/31/2026\"", true},
      {"\"<date>\"", "\"2026-12-31\"", false},
      {"\"<date>\"", "\"\"", false},
      {"\"<date>\"", "1", false},
  };
  for (const MatchCase& c : cases) {
    EXPECT_EQ(matches(Json::parse(c.expected), Json::parse(c.printed)), c.matches)
        << c.expected << " and " << c.printed;
  }
}

TEST(ExpectedOutput, ValuesFollowEachOtherOverAnyNumberOfLines) {
  EXPECT_EQ(expected_values("# remark\n1 \"a\"\n{\"b\":\n  2}\n# [3]\n"),
            (std::vector<Json>{1, "a", {{"b", 2}}}));
  EXPECT_EQ(expected_values(""), std::vector<Json>{});
  EXPECT_ANY_THROW((void)expected_values("{\"b\": 2"));
}

TEST(ExpectedOutput, PrintedValuesStandOneALine) {
  EXPECT_EQ(printed_values("1\n\"a\"\n"), (std::vector<Json>{1, "a"}));
  EXPECT_ANY_THROW((void)printed_values("1 2\n"));
  EXPECT_ANY_THROW((void)printed_values("1\n\n"));
}

TEST(ExpectedOutput, TellsTheFirstDifference) {
  EXPECT_EQ(difference({1, 2}, {1, 2}), "");
  EXPECT_EQ(difference({1, 2}, {1, 3}), "value 2 is\n  3\nand should be\n  2");
  EXPECT_EQ(difference({1}, {1, 2}), "there is more: 2");
  EXPECT_EQ(difference({1, 2}, {1}), "this is missing: 2");
}

}  // namespace
}  // namespace quillvane
