#include "support/date_text.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

// The 7th of March 2013, 5 minutes and 8 seconds past nine.
constexpr DateTime kMoment{.year = 2013, .month = 3, .day = 7, .hour = 9, .minute = 5, .second = 8};

struct FormatCase {
  const char* format;
  const char* text;
};

TEST(DateText, PutsDayMonthAndYearIntoTheFormat) {
  for (const auto& [format, text] : {
           FormatCase{"dd,mm,yyyy", "07,03,2013"},
           FormatCase{" dd /mm/yyyy ", " 07 /03/2013 "},
           FormatCase{"dd_mm_yyyy", "07_03_2013"},
           FormatCase{"on no day", "on no day"},
       }) {
    EXPECT_EQ(date_text(kMoment, format), text) << format;
  }
}

// In a time "mm" are minutes wherever they stand: behind the hours and behind the seconds alike.
TEST(DateText, PutsHourMinuteAndSecondIntoTheFormat) {
  for (const auto& [format, text] : {
           FormatCase{"hh:mm:ss", "09:05:08"},
           FormatCase{" ss: mm: hh ", " 08: 05: 09 "},
           FormatCase{"hh.mm.ss", "09.05.08"},
       }) {
    EXPECT_EQ(time_text(kMoment, format), text) << format;
  }
}

TEST(DateText, KeepsNumbersThatNeedNoZeros) {
  const DateTime moment{
      .year = 2026, .month = 11, .day = 21, .hour = 23, .minute = 59, .second = 40};
  EXPECT_EQ(date_text(moment, "dd,mm,yyyy"), "21,11,2026");
  EXPECT_EQ(time_text(moment, "hh:mm:ss"), "23:59:40");
}

}  // namespace
}  // namespace quillvane
