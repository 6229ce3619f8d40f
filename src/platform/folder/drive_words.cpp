#include "platform/folder/drive_words.h"

#include "platform/unicode_case.h"

namespace quillvane {

namespace {

struct TypeWord {
  std::string_view word;
  DriveType type;
};

constexpr TypeWord kTypeWords[] = {
    {"fixed", DriveType::kFixed},     {"removable", DriveType::kRemovable},
    {"remote", DriveType::kRemote},   {"cdrom", DriveType::kCdRom},
    {"ramdisk", DriveType::kRamDisk},
};

}  // namespace

std::optional<DriveType> drive_type_of(std::string_view word) {
  for (const TypeWord& entry : kTypeWords) {
    if (entry.word == word) return entry.type;
  }
  return std::nullopt;
}

std::string drive_type_word(DriveType type) {
  for (const TypeWord& entry : kTypeWords) {
    if (entry.type == type) return std::string(entry.word);
  }
  return {};
}

std::string drive_type_words() {
  std::string words;
  for (const TypeWord& entry : kTypeWords) {
    if (!words.empty()) words += ", ";
    words += entry.word;
  }
  return words;
}

std::string default_drive_folder(char letter) {
  return "drive_" + lower_case(std::string_view(&letter, 1));
}

}  // namespace quillvane
