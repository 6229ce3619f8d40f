// The two routines that touch a shortcut file.
#pragma once

#include <string>

#include "platform/links.h"

namespace quillvane {

// Reads the shortcut `linkPath` into `shortcut`, whose fields stand in the order in which they are
// read. False when a step failed; what was read until then stays. An empty path is not looked at.
bool ReadShortcut(Links& links, const std::string& linkPath, LinkContent& shortcut);

// Makes the shortcut `linkPath` lead to `shortcut.target`. False when it was not saved: for an
// empty path or target nothing is done.
bool WriteShortcut(Links& links, const std::string& linkPath, const LinkContent& shortcut);

}  // namespace quillvane
