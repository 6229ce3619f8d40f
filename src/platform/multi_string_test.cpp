#include "platform/multi_string.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quillvane {
namespace {

using namespace std::string_view_literals;
using Strings = std::vector<std::string>;

struct Case {
  Strings strings;
  std::string_view data;
};

const std::vector<Case>& cases() {
  static const std::vector<Case> all = {
      {{}, "\0"sv},
      {{"a"}, "a\0\0"sv},
      {{"a", "bc"}, "a\0bc\0\0"sv},
      {{""}, "\0\0"sv},
      {{"a", ""}, "a\0\0\0"sv},
      {{"\\??\\C:\\a", "", "\\??\\C:\\b", "", ""}, "\\??\\C:\\a\0\0\\??\\C:\\b\0\0\0\0"sv},
      {{"", "a"}, "\0a\0\0"sv},
  };
  return all;
}

TEST(MultiString, EachStringAndTheListEndInANul) {
  for (const Case& each : cases()) {
    EXPECT_EQ(multi_string_data(each.strings), each.data) << testing::PrintToString(each.strings);
  }
}

TEST(MultiString, EveryStringComesOutAgainEmptyOnesToo) {
  for (const Case& each : cases()) {
    EXPECT_EQ(multi_string_list(each.data), each.strings) << testing::PrintToString(each.strings);
  }
}

TEST(MultiString, MissingTerminatorsAtTheEndAreTakenAsThere) {
  EXPECT_EQ(multi_string_list(""sv), Strings{});
  EXPECT_EQ(multi_string_list("a"sv), Strings{"a"});
  EXPECT_EQ(multi_string_list("a\0"sv), Strings{"a"});
  EXPECT_EQ(multi_string_list("a\0b"sv), (Strings{"a", "b"}));
}

}  // namespace
}  // namespace quillvane
