// What the machine tells about itself and about the running program.
#pragma once

#include <string>

#include "platform/code_page.h"
#include "platform/file_time.h"

namespace quillvane {

// The order in which the system reads and writes the parts of a short date.
enum class DateOrder { kMonthDayYear, kDayMonthYear, kYearMonthDay };

// A calendar date and time of day.
struct DateTime {
  int year = 0;
  int month = 0;  // 1 to 12
  int day = 0;    // 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;

  friend bool operator==(const DateTime&, const DateTime&) = default;
};

class SystemInfo {
 public:
  virtual ~SystemInfo() = default;

  // Folder of the program's executable, which is also its data folder; no backslash at its end.
  [[nodiscard]] virtual std::string program_folder() const = 0;

  // Folder of the system's own programs, as GetSystemDirectoryA answers; empty on any error.
  [[nodiscard]] virtual std::string system_folder() const = 0;

  // Whether this is a 32-bit program on 64-bit Windows (IsWow64Process); false on any error.
  [[nodiscard]] virtual bool is_wow64() const = 0;

  // The system's 8-bit code page, as GetACP answers in a program that does not ask for UTF-8.
  [[nodiscard]] virtual int ansi_code_page() const = 0;

  // A code page by its number; null for one that no system has as its own or that is not installed.
  // Lives as long as the program.
  [[nodiscard]] virtual const CodePage* code_page(int number) const = 0;

  // The sign between whole and fraction of a number, such as ".".
  [[nodiscard]] virtual std::string decimal_separator() const = 0;

  [[nodiscard]] virtual DateOrder date_order() const = 0;

  // A date and time in the system's format ("3/7/2013 9:05:00 AM"); only the date at midnight.
  [[nodiscard]] virtual std::string format_date(const DateTime& date) const = 0;

  // A file's time as the machine's clock shows it now, be it summer or winter then.
  [[nodiscard]] virtual FileTime local_time(FileTime time) const = 0;
};

}  // namespace quillvane
