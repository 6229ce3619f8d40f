#include "cleaning/backup_history.h"

#include "support/date_text.h"
#include "support/registry_text.h"
#include "support/text.h"
#include "support/val.h"

namespace quillvane {

std::string backup_stamp(const DateTime& now) {
  return date_text(now, "dd_mm_yyyy") + "_" + time_text(now, "hh.mm.ss");
}

RegistryWrite note_backup(Registry& registry, const std::string& key, const std::string& stamp,
                          const std::string& file) {
  const RegistryText before = ReadRegistryString32(registry, Hive::kLocalMachine, key, "cnt");
  if (!before.problem.empty()) return RegistryWrite::failure(before.problem);
  const std::string count = number_text(Val(before.text) + 1);
  RegistryWrite result;
  const auto write = [&](const std::string& sub_key, const std::string& name,
                         const std::string& text) {
    const RegistryWrite written =
        WriteRegistryString(registry, Hive::kLocalMachine, sub_key, name, text);
    if (!written) result = written;  // the next one is tried all the same
  };
  write(key, "cnt", count);
  write(key + "\\dates", count, stamp);
  write(key + "\\file", stamp, file);
  return result;
}

}  // namespace quillvane
