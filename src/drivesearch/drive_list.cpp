// The drive list View2, and the memory of the drives that are ticked in it.
#include <cstdint>
#include <optional>
#include <string>

#include "core/form7.h"
#include "platform/unicode_case.h"
#include "support/registry_text.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

namespace {

constexpr const char* kTimerKey = "software\\Quillvane\\Tidewrack Deluxe\\timer";
constexpr std::uint64_t kBytesOfMegabyte = 1048576;
constexpr int kLettersOfDrives = 26;  // more can never have been stored

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

}  // namespace

void Form7::fill_drive_list() {
  for (const std::string& drive : platform().drives.list()) Drive1.add(drive);
  std::string_view beginning;
  for (const std::string& drive : Drive1.items()) {
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

void Form7::restore_ticked_drives() {
  const auto read = [&](const std::string& name) {
    return ReadRegistryString32(platform().registry, Hive::kLocalMachine, kTimerKey, name).text;
  };
  const double stored = Val(read("alldrive"));
  if (stored >= 1) anydrivechecked = 1;
  int number = 1;
  do {  // the first value is read even when none is stored: meant so
    const std::string pattern = folded(read("drive" + std::to_string(number)));
    for (int row = 1; row <= View2.count(); ++row) {
      if (Like(folded(View2.text(row)), pattern)) View2.set_checked(row, true);
    }
    ++number;
  } while (number <= stored && number <= kLettersOfDrives);
}

void Form7::save_ticked_drives() {
  int ticked = 0;
  const auto write = [&](const std::string& name, std::string_view text) {
    // A setting that cannot be written is forgotten.
    static_cast<void>(
        WriteRegistryString(platform().registry, Hive::kLocalMachine, kTimerKey, name, text));
  };
  for (int row = 1; row <= View2.count(); ++row) {
    program.do_events();
    if (!View2.checked(row)) continue;
    ++ticked;
    write("drive" + std::to_string(ticked), Trim(View2.text(row)));
  }
  write("alldrive", std::to_string(ticked));
}

void Form7::drive_ticked() {
  anydrivechecked = 0;
  for (int row = 1; row <= View2.count() && anydrivechecked == 0; ++row) {
    program.do_events();
    if (View2.checked(row)) anydrivechecked = 1;
  }
}

}  // namespace quillvane
