// Drives, what the system tells of itself, and its log.
#include <algorithm>
#include <string>

#include "tests/contract/contract_test.h"

namespace quillvane {
namespace {

class DrivesContract : public ContractTest {};
class SystemInfoContract : public ContractTest {};
class EventLogContract : public ContractTest {};

TEST_F(DrivesContract, TheSystemDriveIsFixedAndListed) {
  const auto drives = platform.drives.list();
  EXPECT_EQ(std::count(drives.begin(), drives.end(), "C:"), 1);
  EXPECT_TRUE(std::is_sorted(drives.begin(), drives.end()));
  EXPECT_EQ(platform.drives.type("C:\\"), DriveType::kFixed);
  EXPECT_EQ(platform.drives.type("c:\\"), DriveType::kFixed);
}

TEST_F(DrivesContract, TheSystemDriveHasRoom) {
  const auto space = platform.drives.space("C:\\");
  ASSERT_TRUE(space.has_value());
  EXPECT_GT(space->total_bytes, 0U);
  EXPECT_LE(space->free_bytes, space->total_bytes);
}

TEST_F(DrivesContract, AMissingDriveHasNoRootAndNoRoom) {
  const auto drives = platform.drives.list();
  ASSERT_EQ(std::count(drives.begin(), drives.end(), "Q:"), 0) << "the test needs Q: to be free";
  EXPECT_EQ(platform.drives.type("Q:\\"), DriveType::kNoRoot);
  EXPECT_FALSE(platform.drives.space("Q:\\").has_value());
}

// The settings of a user in the United States, which the tests run with.
TEST_F(SystemInfoContract, DatesAndNumbersAreThoseOfTheUnitedStates) {
  EXPECT_EQ(platform.system.decimal_separator(), ".");
  EXPECT_EQ(platform.system.date_order(), DateOrder::kMonthDayYear);
  EXPECT_EQ(platform.system.ansi_code_page(), 1252);
}

TEST_F(SystemInfoContract, ADateIsWrittenWithItsTimeButAtMidnight) {
  const struct {
    DateTime date;
    const char* text;
  } cases[] = {
      {{2013, 3, 7, 9, 5, 0}, "3/7/2013 9:05:00 AM"},
      {{2013, 3, 7, 0, 0, 0}, "3/7/2013"},
      {{2013, 12, 31, 23, 59, 59}, "12/31/2013 11:59:59 PM"},
      {{2013, 12, 31, 12, 0, 0}, "12/31/2013 12:00:00 PM"},
      {{2013, 12, 31, 0, 0, 1}, "12/31/2013 12:00:01 AM"},
      {{1601, 1, 1, 0, 0, 0}, "1/1/1601"},
  };
  for (const auto& [date, text] : cases) EXPECT_EQ(platform.system.format_date(date), text);
}

TEST_F(SystemInfoContract, TimesOfFilesAreShownByTheClockOnTheWall) {
  const FileTime noon{130'000'000'000'000'000};
  const FileTime later{noon.ticks + 10'000'000};
  const std::int64_t shift = platform.system.local_time(noon).ticks - noon.ticks;
  EXPECT_EQ(platform.system.local_time(later).ticks - later.ticks, shift);
  constexpr std::int64_t kTicksOfQuarter = 9'000'000'000;
  constexpr std::int64_t kQuartersOfDay = 96;
  EXPECT_EQ(shift % kTicksOfQuarter, 0);
  EXPECT_LT(shift, kQuartersOfDay * kTicksOfQuarter);
  EXPECT_GT(shift, -kQuartersOfDay * kTicksOfQuarter);
}

TEST_F(SystemInfoContract, TheProgramsFolderHasADriveAndNoBackslashAtItsEnd) {
  const std::string folder = platform.system.program_folder();
  ASSERT_GT(folder.size(), 3U);
  EXPECT_EQ(folder.substr(1, 2), ":\\");
  EXPECT_NE(folder.back(), '\\');
}

TEST_F(EventLogContract, AnEntryIsTaken) {
  EXPECT_TRUE(platform.event_log.write("", "Quillvane contract test", 5000, 4,
                                       "An entry of the contract test.\r\nIts second line."));
}

}  // namespace
}  // namespace quillvane
