#include "machine/demo_files.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace quillvane {
namespace {

TEST(DemoFiles, ARowOfOneFileIsThatFile) {
  const auto files = expand_demo_files({"C:\\Windows", "MEMORY.DMP", 1000});
  ASSERT_EQ(files.size(), 1U);
  EXPECT_EQ(files[0].path, "C:\\Windows\\MEMORY.DMP");
  EXPECT_EQ(files[0].bytes, 1000U);
}

TEST(DemoFiles, ANumberSignCountsTheFilesOfARow) {
  const auto files = expand_demo_files({"\\Cache#", "f_#", 0, 3}, "C:\\Root");
  ASSERT_EQ(files.size(), 3U);
  EXPECT_EQ(files[0].path, "C:\\Root\\Cache1\\f_1");
  EXPECT_EQ(files[2].path, "C:\\Root\\Cache3\\f_3");
  EXPECT_EQ(files[0].bytes, 0U);
}

TEST(DemoFiles, AStarIsFourDigitsThatDifferFromFileToFile) {
  std::set<std::string> names;
  for (const DemoFile& file : expand_demo_files({"C:", "*.tmp", 100, 20})) {
    ASSERT_EQ(file.path.size(), 11U) << file.path;
    const std::string digits = file.path.substr(3, 4);
    EXPECT_EQ(digits.find_first_not_of("0123456789ABCDEF"), std::string::npos) << file.path;
    EXPECT_EQ(file.path.substr(7), ".tmp");
    names.insert(digits);
  }
  EXPECT_EQ(names.size(), 20U);
}

TEST(DemoFiles, SizesAndTimesVaryWithinBounds) {
  constexpr std::int64_t kBeginningOf2024 = 133'485'408'000'000'000;
  constexpr std::int64_t kBeginningOf2026 = 134'116'992'000'000'000;
  std::set<std::uint64_t> sizes;
  for (const DemoFile& file : expand_demo_files({"C:", "#", 1000, 20})) {
    EXPECT_GE(file.bytes, 750U);
    EXPECT_LE(file.bytes, 1250U);
    EXPECT_GE(file.time.ticks, kBeginningOf2024);
    EXPECT_LT(file.time.ticks, kBeginningOf2026);
    sizes.insert(file.bytes);
  }
  EXPECT_GT(sizes.size(), 5U);
}

}  // namespace
}  // namespace quillvane
