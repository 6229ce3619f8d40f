// What all backups before a removal have in common: the folder's name and the history.
#pragma once

#include <string>

#include "platform/registry.h"
#include "platform/system_info.h"

namespace quillvane {

// Date and time of a backup, the name of its folder: "21_11_2026_10.00.00".
[[nodiscard]] std::string backup_stamp(const DateTime& now);

// Notes a backup in the history of `key` (local machine): the count goes up, and `file` is kept
// under the stamp. Nothing in the program reads it back. A number that could not be read is not
// begun anew: then nothing is written.
RegistryWrite note_backup(Registry& registry, const std::string& key, const std::string& stamp,
                          const std::string& file);

}  // namespace quillvane
