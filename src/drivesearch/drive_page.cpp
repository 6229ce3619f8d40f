#include "drivesearch/drive_page.h"

#include <cstdint>
#include <optional>
#include <string>

#include "platform/unicode_case.h"
#include "support/registry_text.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kTimerKey = "software\\Quillvane\\Tidewrack Deluxe\\timer";
constexpr std::uint64_t kBytesOfMegabyte = 1048576;
constexpr int kStatusColumn = 3;

// What a row begins with, for the kinds of drives that have one; nothing for a CD-ROM. A kind that
// is not known keeps the text of the drive before it: meant so.
std::optional<std::string_view> row_beginning(DriveType type, std::string_view before) {
  switch (type) {
    case DriveType::kRemovable:
      return "Removable media (";
    case DriveType::kFixed:
    case DriveType::kRamDisk:
      return "Local Disk (";
    case DriveType::kRemote:
      return "Remote Drive (";
    case DriveType::kCdRom:
      return std::nullopt;
    default:
      return before;
  }
}

// Two decimals; what lies in the middle is rounded up.
std::string megabytes(std::uint64_t bytes, const std::string& decimal_separator) {
  const std::uint64_t rest = bytes % kBytesOfMegabyte;
  const std::uint64_t hundredths =
      bytes / kBytesOfMegabyte * 100 + (rest * 100 + kBytesOfMegabyte / 2) / kBytesOfMegabyte;
  const std::string decimals = std::to_string(hundredths % 100);
  return std::to_string(hundredths / 100) + decimal_separator + (decimals.size() < 2 ? "0" : "") +
         decimals + " MB";
}

std::string folded(std::string_view text) { return lower_case(Trim(text)); }

// The number behind "drive" in the name of a stored drive; nothing for other names.
std::optional<double> drive_number(const std::string& name) {
  constexpr std::string_view kDrive = "drive";
  if (!same_name(name.substr(0, kDrive.size()), kDrive)) return std::nullopt;
  const std::string digits = name.substr(kDrive.size());
  const double number = Val(digits);
  // Written as a count is: no blanks, no leading zero.
  return number >= 1 && number_text(number) == digits ? std::optional(number) : std::nullopt;
}

}  // namespace

DrivePage::DrivePage(Window& owner, Session& shared) : Page(owner, shared) {
  View2.on_item_check = [this](int /*row*/) { drive_ticked(); };
  Timer1.on_timer = [this] { blink(); };
  // It runs as long as the window, and has something to do while drives are searched.
  Timer1.set_idle(true);
  Timer1.set_running(true);
  Text6.on_change = [this] { Timer1.set_idle(Val(Text6.text()) != 1); };
}

void DrivePage::fill_drive_list(ListBox& drives) {
  for (const std::string& drive : platform().drives.list()) drives.add(drive);
  std::string_view beginning;
  for (const std::string& drive : drives.items()) {
    const std::string root = upper_case(drive.substr(0, 1)) + ":\\";
    const DriveType type = platform().drives.type(root);
    const auto row_text = row_beginning(type, beginning);
    if (!row_text) continue;
    beginning = *row_text;
    const int row = View2.add(std::string(beginning) + drive.substr(0, 2) + ")");
    if (type == DriveType::kRemovable) continue;
    const auto space = platform().drives.space(root);
    if (!space) continue;
    const std::string separator = platform().system.decimal_separator();
    View2.set_sub_item(row, 1, megabytes(space->total_bytes, separator));
    View2.set_sub_item(row, 2, megabytes(space->free_bytes, separator));
  }
}

void DrivePage::restore_ticked_drives() {
  const Registry& registry = platform().registry;
  const RegistryText count =
      ReadRegistryString32(registry, Hive::kLocalMachine, kTimerKey, "alldrive");
  const double stored = Val(count.text);
  if (stored >= 1) anydrivechecked = 1;
  // The values that are there are gone through, not the numbers up to the count: any count can have
  // been stored.
  const auto values = registry.values(Hive::kLocalMachine, kTimerKey, KeyAccess::kSettings);
  drives_problem_ = count.problem.empty() ? values.problem() : count.problem;
  if (!values) return;
  for (const NamedRegistryValue& value : *values) {
    const auto number = drive_number(value.name);
    // The first is read even when none is stored: meant so.
    if (!number || (*number > stored && *number != 1)) continue;
    const RegistryText drive =
        ReadRegistryString32(registry, Hive::kLocalMachine, kTimerKey, value.name);
    if (drives_problem_.empty()) drives_problem_ = drive.problem;
    const std::string pattern = folded(drive.text);
    for (int row = 1; row <= View2.count(); ++row) {
      if (Like(folded(View2.text(row)), pattern)) View2.set_checked(row, true);
    }
  }
}

void DrivePage::save_ticked_drives() {
  // Drives that could not be read at the start are not replaced by those that are ticked now.
  if (!drives_problem_.empty()) {
    session.tell_problem("ticked drives", "not saved: " + drives_problem_);
    return;
  }
  int ticked = 0;
  const auto write = [&](const std::string& name, std::string_view text) {
    const RegistryWrite written =
        WriteRegistryString(platform().registry, Hive::kLocalMachine, kTimerKey, name, text);
    if (!written) session.tell_problem("ticked drives", "not saved: " + written.problem());
    return static_cast<bool>(written);
  };
  for (int row = 1; row <= View2.count(); ++row) {
    session.do_events();
    if (!View2.checked(row)) continue;
    ++ticked;
    // The count that is there still says how many of the drives belong together.
    if (!write("drive" + std::to_string(ticked), Trim(View2.text(row)))) return;
  }
  write("alldrive", std::to_string(ticked));
}

void DrivePage::blink() {
  const double row = Val(txtviewf.text());
  const bool is_row = row >= 1 && row <= View2.count();
  const auto show = [&](const char* icon) {
    if (!is_row) return;
    View2.set_sub_item(static_cast<int>(row), kStatusColumn, "analyzing");
    View2.set_icon(static_cast<int>(row), icon);
  };
  const double phase = Val(txttime.text());
  if (phase == 0) {
    show("t");
    txttime.set_text("1");
  } else if (phase == 1) {
    show("te");
    txttime.set_text("0");
  }
}

void DrivePage::drive_ticked() {
  anydrivechecked = 0;
  for (int row = 1; row <= View2.count() && anydrivechecked == 0; ++row) {
    session.do_events();
    if (View2.checked(row)) anydrivechecked = 1;
  }
}

}  // namespace quillvane
