#include "platform/date_time_text.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

TEST(DateTimeText, ReadsDateAndTime) {
  EXPECT_EQ(date_time_from_text("2013-03-07 09:05:00"),
            (DateTime{.year = 2013, .month = 3, .day = 7, .hour = 9, .minute = 5, .second = 0}));
  EXPECT_EQ(
      date_time_from_text("2024-02-29 23:59:59"),
      (DateTime{.year = 2024, .month = 2, .day = 29, .hour = 23, .minute = 59, .second = 59}));
}

TEST(DateTimeText, RefusesOtherForms) {
  for (const char* text :
       {"", "2013-03-07", "2013-3-7 09:05:00", "2013-03-07T09:05:00", "2013-03-07 09:05:00 ",
        " 2013-03-07 09:05:00", "2013-03-07 09:05", "20x3-03-07 09:05:00", "2013/03/07 09:05:00"}) {
    EXPECT_EQ(date_time_from_text(text), std::nullopt) << '"' << text << '"';
  }
}

TEST(DateTimeText, RefusesDaysAndTimesThatDoNotExist) {
  for (const char* text : {"2013-02-29 00:00:00", "2013-13-01 00:00:00", "2013-00-01 00:00:00",
                           "2013-04-31 00:00:00", "2013-04-00 00:00:00", "2013-04-30 24:00:00",
                           "2013-04-30 00:60:00", "2013-04-30 00:00:60"}) {
    EXPECT_EQ(date_time_from_text(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace quillvane
