#include "support/file_date.h"

#include <chrono>
#include <utility>

namespace quillvane {

namespace {

using std::chrono::days;
using Ticks = std::chrono::duration<std::int64_t, std::ratio<1, 10'000'000>>;

constexpr std::chrono::sys_days kEpoch =
    std::chrono::sys_days{std::chrono::year{1601} / std::chrono::January / 1};
constexpr int kLastYear = 30827;

}  // namespace

std::optional<DateTime> calendar_date(FileTime time) {
  if (time.ticks < 0) return std::nullopt;
  const Ticks since_epoch{time.ticks};
  const auto whole_days = std::chrono::floor<days>(since_epoch);
  const std::chrono::year_month_day date{kEpoch + whole_days};
  const std::chrono::hh_mm_ss clock{std::chrono::floor<std::chrono::seconds>(since_epoch) -
                                    whole_days};
  if (static_cast<int>(date.year()) > kLastYear) return std::nullopt;
  return DateTime{.year = static_cast<int>(date.year()),
                  .month = static_cast<int>(static_cast<unsigned>(date.month())),
                  .day = static_cast<int>(static_cast<unsigned>(date.day())),
                  .hour = static_cast<int>(clock.hours().count()),
                  .minute = static_cast<int>(clock.minutes().count()),
                  .second = static_cast<int>(clock.seconds().count())};
}

FileTime file_time_of(const DateTime& date) {
  const std::chrono::sys_days day = std::chrono::year{date.year} /
                                    std::chrono::month{static_cast<unsigned>(date.month)} /
                                    std::chrono::day{static_cast<unsigned>(date.day)};
  const auto since_epoch = std::chrono::duration_cast<Ticks>(day - kEpoch) +
                           std::chrono::hours{date.hour} + std::chrono::minutes{date.minute} +
                           std::chrono::seconds{date.second};
  return {std::chrono::duration_cast<Ticks>(since_epoch).count()};
}

std::optional<DateTime> FileTimeToDate(FileTime time, DateOrder order) {
  std::optional<DateTime> date = calendar_date(time);
  if (date && order == DateOrder::kDayMonthYear && date->day <= 12) {
    std::swap(date->day, date->month);
  }
  return date;
}

}  // namespace quillvane
