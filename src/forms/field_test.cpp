#include "forms/field.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace quillvane {
namespace {

struct Page {
  Window window{"Form1"};
  Field<int> selnode{window, "selnode"};
  Field<int> custnode{window, "custnode", 25};
  Field<double> bytes{window, "Bytes"};
  Field<bool> given{window, "given", true};
  Field<std::string> words{window, "words", "none"};
};

TEST(Field, IsReadThroughItsWindowWithoutRegardToCase) {
  const Page page;
  EXPECT_EQ(page.window.field("selnode"), PropertyValue(std::int64_t{0}));
  EXPECT_EQ(page.window.field("CUSTNODE"), PropertyValue(std::int64_t{25}));
  EXPECT_EQ(page.window.field("bytes"), PropertyValue(std::int64_t{0}));
  EXPECT_EQ(page.window.field("given"), PropertyValue(true));
  EXPECT_EQ(page.window.field("words"), PropertyValue("none"));
  EXPECT_EQ(page.window.field("other"), std::nullopt);
}

TEST(Field, StandsForItsValue) {
  Page page;
  page.selnode = 7;
  page.bytes += 0.5;
  page.words = "some";
  EXPECT_EQ(page.selnode + 1, 8);
  EXPECT_EQ(page.window.field("selnode"), PropertyValue(std::int64_t{7}));
  EXPECT_EQ(page.window.field("bytes"), PropertyValue(0.5));
  EXPECT_EQ(page.window.field("words"), PropertyValue("some"));
}

}  // namespace
}  // namespace quillvane
