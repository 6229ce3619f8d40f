#include "view/console/json_text.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

TEST(JsonText, WholeNumbersHaveNoPoint) {
  EXPECT_EQ(json_text(json_number(0)), "0");
  EXPECT_EQ(json_text(json_number(12)), "12");
  EXPECT_EQ(json_text(json_number(-3)), "-3");
  EXPECT_EQ(json_text(json_number(5368709120.0)), "5368709120");
}

TEST(JsonText, FractionsStay) { EXPECT_EQ(json_text(json_number(1.5)), "1.5"); }

TEST(JsonText, KeepsTheOrderOfKeys) {
  EXPECT_EQ(json_text({{"zebra", 1}, {"ant", 2}}), R"({"zebra":1,"ant":2})");
}

TEST(JsonText, BytesThatAreNoUtf8AreReplaced) {
  EXPECT_EQ(json_text("a\xFF"
                      "b"),
            "\"a\xEF\xBF\xBD"
            "b\"");
  EXPECT_EQ(json_text("\xC3\xA4"), "\"\xC3\xA4\"");
}

TEST(JsonText, WhatUpsetsATerminalStandsAsAnEscapeAndReadsTheSame) {
  const std::string name = "a\x1b\n\x7f\xC2\x9B\xE2\x80\xAE\xC3\xA4";
  EXPECT_EQ(json_text(name), "\"a\\u001b\\n\\u007f\\u009b\\u202e\xC3\xA4\"");
  EXPECT_EQ(Json::parse(json_text(name)), name);
}

}  // namespace
}  // namespace quillvane
