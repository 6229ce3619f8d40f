// The options of the shortcut window, as the registry keeps them.
#pragma once

#include <string>

#include "shortcuts/older_removal.h"
#include "shortcuts/where_page.h"

namespace quillvane {

class ShortcutOptions {
 public:
  // Both must outlive it.
  ShortcutOptions(WherePage& where, OlderRemoval& removal) : where_(where), removal_(removal) {}

  // Values that are not there leave what stands.
  void read();
  // What could not be read is not written over.
  void write() const;

 private:
  void read_ticked_drives();
  [[nodiscard]] std::string value(const std::string& name);

  WherePage& where_;
  OlderRemoval& removal_;
  std::string problem_;  // why the stored options could not be read
};

}  // namespace quillvane
