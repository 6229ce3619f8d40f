#include "platform/folder/machine_system.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

struct Case {
  DateTime date;
  const char* text;
};

constexpr Case kDates[] = {
    {{2013, 3, 7, 9, 5, 0}, "3/7/2013 9:05:00 AM"},
    {{2013, 3, 7, 0, 0, 0}, "3/7/2013"},
    {{2013, 3, 7, 0, 0, 1}, "3/7/2013 12:00:01 AM"},
    {{2013, 3, 7, 0, 30, 0}, "3/7/2013 12:30:00 AM"},
    {{2013, 12, 31, 11, 59, 59}, "12/31/2013 11:59:59 AM"},
    {{2013, 12, 31, 12, 0, 0}, "12/31/2013 12:00:00 PM"},
    {{2013, 12, 31, 23, 9, 8}, "12/31/2013 11:09:08 PM"},
    {{1601, 1, 1, 0, 0, 0}, "1/1/1601"},
};

TEST(MachineSystem, DatesAreThoseOfTheUnitedStates) {
  const MachineState state;
  const MachineSystem system(state);
  for (const Case& each : kDates) {
    EXPECT_EQ(system.format_date(each.date), each.text);
  }
  EXPECT_EQ(system.date_order(), DateOrder::kMonthDayYear);
  EXPECT_EQ(system.decimal_separator(), ".");
}

TEST(MachineSystem, TellsWhatTheMachineIs) {
  MachineState state;
  const MachineSystem system(state);
  EXPECT_EQ(system.program_folder(), "C:\\Program Files\\Tidewrack");
  EXPECT_FALSE(system.is_wow64());
  EXPECT_EQ(system.ansi_code_page(), 1252);
  state.program_folder = "D:\\Tools\\";
  state.is_64_bit = true;
  state.code_page = 932;
  EXPECT_EQ(system.program_folder(), "D:\\Tools");
  EXPECT_TRUE(system.is_wow64());
  EXPECT_EQ(system.ansi_code_page(), 932);
}

}  // namespace
}  // namespace quillvane
