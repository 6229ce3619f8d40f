#include "shortcuts/shell_link.h"

namespace quillvane {

bool ReadShortcut(Links& links, const std::string& linkPath, LinkContent& shortcut) {
  shortcut = {};
  return !linkPath.empty() && links.read_link(linkPath, shortcut);
}

bool WriteShortcut(Links& links, const std::string& linkPath, const LinkContent& shortcut) {
  return !linkPath.empty() && !shortcut.target.empty() && links.write_link(linkPath, shortcut);
}

}  // namespace quillvane
