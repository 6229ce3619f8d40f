#include "platform/folder/machine_clock.h"

#include <gtest/gtest.h>

#include <chrono>

namespace quillvane {
namespace {

using std::chrono::sys_days;
using std::chrono::year;

TEST(MachineClock, ShowsTheTimeOfTheHostInTheZoneOfTheMachine) {
  const auto nine_five =
      sys_days{year{2013} / 3 / 7} + std::chrono::hours(9) + std::chrono::minutes(5);
  EXPECT_EQ(machine_clock(nine_five, 0), FileTime{130'071'207'000'000'000});
  EXPECT_EQ(machine_clock(nine_five, 60), FileTime{130'071'243'000'000'000});
  EXPECT_EQ(machine_clock(nine_five, -30), FileTime{130'071'189'000'000'000});
}

TEST(MachineClock, HasStepsOfAHundredNanoseconds) {
  const std::chrono::system_clock::time_point host{std::chrono::nanoseconds(1'250)};
  EXPECT_EQ(machine_clock(host, 0), FileTime{116'444'736'000'000'012});
}

}  // namespace
}  // namespace quillvane
