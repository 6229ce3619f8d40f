#include "support/size_text.h"

#include <gtest/gtest.h>

#include <string_view>

namespace quillvane {
namespace {

struct Case {
  double bytes;
  std::string_view text;
};

template <std::size_t count>
void expect_texts(const Case (&cases)[count], std::string_view separator = ".") {
  for (const auto& [bytes, text] : cases) {
    EXPECT_EQ(NumberInKB(bytes, separator), text) << bytes << " bytes";
  }
}

constexpr Case kBytes[] = {{0, "0 B"}, {1, "1 B"}, {512, "512 B"}, {1023, "1023 B"}};

TEST(NumberInKB, ShowsBytesBelow1024) { expect_texts(kBytes); }

constexpr Case kKilobytes[] = {
    {1024, "1 KB"},       {1536, "1.5 KB"},       {2048, "2 KB"}, {1075, "1 KB"},  // 1.0498
    {1076, "1.1 KB"},                                                              // 1.0508
    {1127, "1.1 KB"},                                                              // 1.1006
    {102400, "100 KB"},   {1048524, "1023.9 KB"},                                  // 1023.949
    {1048575, "1024 KB"},                                                          // 1023.999
};

TEST(NumberInKB, ShowsKilobytesWithOneDecimal) { expect_texts(kKilobytes); }

constexpr Case kMegabytes[] = {
    {1048576, "1 MB"},    {1572864, "1.5 MB"}, {3575644, "3.41 MB"},
    {1101005, "1.05 MB"}, {1153434, "1.1 MB"}, {1073741823, "1024 MB"},  // 1023.999999
};

TEST(NumberInKB, ShowsMegabytesWithTwoDecimals) { expect_texts(kMegabytes); }

constexpr Case kGigabytes[] = {
    {1073741824, "1 GB"},
    {1610612736, "1.5 GB"},
    {5368709120, "5 GB"},
    {1099511627775, "1024 GB"},
};

TEST(NumberInKB, ShowsGigabytesWithTwoDecimals) { expect_texts(kGigabytes); }

constexpr Case kTies[] = {
    {1280, "1.2 KB"},         // 1.25
    {1792, "1.8 KB"},         // 1.75
    {2304, "2.2 KB"},         // 2.25
    {1179648, "1.12 MB"},     // 1.125
    {1441792, "1.38 MB"},     // 1.375
    {1703936, "1.62 MB"},     // 1.625
    {1966080, "1.88 MB"},     // 1.875
    {1207959552, "1.12 GB"},  // 1.125
    {1476395008, "1.38 GB"},  // 1.375
};

TEST(NumberInKB, RoundsTiesToTheEvenDigit) { expect_texts(kTies); }

constexpr Case kTooMany[] = {{1099511627776, ""}, {2199023255552, ""}};

TEST(NumberInKB, HasNoUnitAboveGigabytes) { expect_texts(kTooMany); }

constexpr Case kNegative[] = {{-1, "-1 B"}, {-2048, "-2048 B"}, {-2147483648.0, "-2147483648 B"}};

TEST(NumberInKB, ShowsANegativeSizeInBytes) { expect_texts(kNegative); }

constexpr Case kWithComma[] = {
    {1023, "1023 B"}, {1024, "1 KB"}, {1536, "1,5 KB"}, {3575644, "3,41 MB"}};

TEST(NumberInKB, WritesTheSystemsDecimalSeparator) { expect_texts(kWithComma, ","); }

TEST(SearchSizeText, CountsBytesThenKbThenMb) {
  EXPECT_EQ(search_size_text(0, "."), "0 Byte");
  EXPECT_EQ(search_size_text(1023, "."), "1023 Byte");
  EXPECT_EQ(search_size_text(1024, "."), "1 KB");
  EXPECT_EQ(search_size_text(1500, "."), "1.46 KB");
  EXPECT_EQ(search_size_text(1500, ","), "1,46 KB");
  // 1024 KB do not exceed 1024.
  EXPECT_EQ(search_size_text(1048576, "."), "1024 KB");
  EXPECT_EQ(search_size_text(1048577, "."), "1 MB");
  EXPECT_EQ(search_size_text(3575644, "."), "3.41 MB");
  // There is no unit above.
  EXPECT_EQ(search_size_text(5368709120.0, "."), "5120 MB");
}

TEST(SearchSizeText, RoundsTiesToTheEvenDigit) {
  // 1024 + 128 bytes are 1.125 KB, 1024 + 384 are 1.375 KB.
  EXPECT_EQ(search_size_text(1152, "."), "1.12 KB");
  EXPECT_EQ(search_size_text(1408, "."), "1.38 KB");
}

}  // namespace
}  // namespace quillvane
