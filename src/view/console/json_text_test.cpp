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

}  // namespace
}  // namespace quillvane
