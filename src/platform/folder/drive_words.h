// Drives as machine.json names them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/drives.h"

namespace quillvane {

// "fixed", "removable", "remote", "cdrom" and "ramdisk"; nothing for other words.
[[nodiscard]] std::optional<DriveType> drive_type_of(std::string_view word);

// The word of a type that has one.
[[nodiscard]] std::string drive_type_word(DriveType type);

// All of the words, for a message.
[[nodiscard]] std::string drive_type_words();

// Name of the folder that holds a drive's files when nothing else is told: "drive_c" for 'C'.
[[nodiscard]] std::string default_drive_folder(char letter);

}  // namespace quillvane
