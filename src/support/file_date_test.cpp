#include "support/file_date.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <optional>
#include <ostream>

namespace quillvane {

// So that a failed check tells the date and not its bytes.
void PrintTo(const DateTime& date, std::ostream* out) {
  *out << date.year << '-' << date.month << '-' << date.day << ' ' << date.hour << ':'
       << date.minute << ':' << date.second;
}

namespace {

constexpr std::int64_t kTicksPerSecond = 10'000'000;

// 2013-03-07 09:05:00 is 1362647100 seconds after 1970, and 1970 is 11644473600 after 1601.
constexpr FileTime kSeventhOfMarch{13'007'120'700 * kTicksPerSecond};
constexpr std::int64_t kDay = 86'400 * kTicksPerSecond;

struct Case {
  FileTime time;
  DateTime date;
};

constexpr Case kDates[] = {
    {{0}, {1601, 1, 1, 0, 0, 0}},
    {{116'444'736'000'000'000}, {1970, 1, 1, 0, 0, 0}},
    {{116'444'736'000'000'000 - 1}, {1969, 12, 31, 23, 59, 59}},
    {kSeventhOfMarch, {2013, 3, 7, 9, 5, 0}},
    {{kSeventhOfMarch.ticks + kTicksPerSecond - 1}, {2013, 3, 7, 9, 5, 0}},  // whole seconds only
    {{(951'782'400 + 11'644'473'600) * kTicksPerSecond}, {2000, 2, 29, 0, 0, 0}},
};

TEST(CalendarDate, CountsFrom1601) {
  for (const auto& [time, date] : kDates) EXPECT_EQ(calendar_date(time), date) << time.ticks;
}

TEST(CalendarDate, IsNothingForTimesThatTheSystemCannotExpress) {
  EXPECT_EQ(calendar_date({-1}), std::nullopt);
  EXPECT_EQ(calendar_date({std::numeric_limits<std::int64_t>::min()}), std::nullopt);
  EXPECT_EQ(calendar_date({std::numeric_limits<std::int64_t>::max()}), std::nullopt);
}

TEST(FileTimeOf, IsTheTimeOfADate) {
  EXPECT_EQ(file_time_of({1601, 1, 1, 0, 0, 0}), FileTime{0});
  EXPECT_EQ(file_time_of({2013, 3, 7, 9, 5, 0}), kSeventhOfMarch);
  EXPECT_EQ(file_time_of({2013, 3, 6, 9, 5, 0}), FileTime{kSeventhOfMarch.ticks - kDay});
}

TEST(FileTimeToDate, IsTheDateItselfWhereMonthsComeFirst) {
  const DateTime seventh_of_march{2013, 3, 7, 9, 5, 0};
  EXPECT_EQ(FileTimeToDate(kSeventhOfMarch, DateOrder::kMonthDayYear), seventh_of_march);
}

TEST(FileTimeToDate, SwapsDayAndMonthWhereDaysComeFirst) {
  const DateTime third_of_july{2013, 7, 3, 9, 5, 0};
  EXPECT_EQ(FileTimeToDate(kSeventhOfMarch, DateOrder::kDayMonthYear), third_of_july);
}

TEST(FileTimeToDate, KeepsADateWithoutASecondReading) {
  const FileTime later{kSeventhOfMarch.ticks + 6 * kDay};
  const DateTime thirteenth_of_march{2013, 3, 13, 9, 5, 0};
  EXPECT_EQ(FileTimeToDate(later, DateOrder::kDayMonthYear), thirteenth_of_march);
}

TEST(FileTimeToDate, IsNothingForATimeWithoutADate) {
  EXPECT_EQ(FileTimeToDate({-1}, DateOrder::kMonthDayYear), std::nullopt);
  EXPECT_EQ(FileTimeToDate({-1}, DateOrder::kDayMonthYear), std::nullopt);
}

}  // namespace
}  // namespace quillvane
