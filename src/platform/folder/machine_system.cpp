#include "platform/folder/machine_system.h"

#include <cstdint>

#include "platform/folder/host_code_page.h"

namespace quillvane {

namespace {

std::string two_digits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

std::string MachineSystem::program_folder() const {
  std::string folder = state_.program_folder;
  if (folder.ends_with('\\')) folder.pop_back();
  return folder;
}

const CodePage* MachineSystem::code_page(int number) const { return host_code_page(number); }

FileTime MachineSystem::local_time(FileTime time) const {
  constexpr std::int64_t kTicksOfMinute = 600'000'000;
  return {time.ticks + state_.utc_offset_minutes * kTicksOfMinute};
}

std::string MachineSystem::format_date(const DateTime& date) const {
  std::string text =
      std::to_string(date.month) + "/" + std::to_string(date.day) + "/" + std::to_string(date.year);
  if (date.hour == 0 && date.minute == 0 && date.second == 0) return text;
  const int hour = date.hour % 12 == 0 ? 12 : date.hour % 12;
  return text + " " + std::to_string(hour) + ":" + two_digits(date.minute) + ":" +
         two_digits(date.second) + (date.hour < 12 ? " AM" : " PM");
}

}  // namespace quillvane
