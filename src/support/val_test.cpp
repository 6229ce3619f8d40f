#include "support/val.h"

#include <gtest/gtest.h>

#include <string_view>

namespace quillvane {
namespace {

struct Case {
  std::string_view text;
  double number;
};

constexpr Case kNumbersAtTheHead[] = {
    {"12", 12},
    {"-3", -3},
    {"+7", 7},
    {"3.5", 3.5},
    {"-0.25", -0.25},
    {".5", 0.5},
    {"5.", 5},
    {"007", 7},
    {"1099511627776", 1099511627776.0},
    // What follows the number is ignored.
    {"12abc", 12},
    {"12|3575644", 12},
    {"1.5.7", 1.5},
    {"1,5", 1},
    {"12-3", 12},
    // Blanks are passed over, inside too.
    {"  12", 12},
    {"1 024", 1024},
    {"- 3", -3},
    {"12\r\n", 12},
};

TEST(Val, ReadsTheNumberAtTheHead) {
  for (const auto& [text, number] : kNumbersAtTheHead) EXPECT_EQ(Val(text), number) << text;
}

constexpr Case kExponents[] = {
    {"1e3", 1000},  {"2E2", 200},  {"1.5e+2", 150},
    {"25e-1", 2.5}, {"1d3", 1000}, {"1e", 1},  // no exponent without digits
    {"1e+", 1},
};

TEST(Val, ReadsExponents) {
  for (const auto& [text, number] : kExponents) EXPECT_EQ(Val(text), number) << text;
}

constexpr Case kOtherBases[] = {
    {"&h10", 16}, {"&H1F", 31}, {"&h1f", 31},
    {"&o17", 15}, {"&O10", 8},  {"&h001", 1},  // as a registry number of 1 is written
    {"&h1G", 1},  {"&h", 0},
};

TEST(Val, ReadsHexadecimalAndOctalNumbersByTheirMark) {
  for (const auto& [text, number] : kOtherBases) EXPECT_EQ(Val(text), number) << text;
}

constexpr std::string_view kNoNumbers[] = {"", " ", "abc", "-", "+", ".", "-.", "e5", "|12", "--3"};

TEST(Val, CountsAsZeroWithoutANumber) {
  for (const std::string_view text : kNoNumbers) EXPECT_EQ(Val(text), 0) << text;
}

}  // namespace
}  // namespace quillvane
