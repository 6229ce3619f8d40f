// Whether a shortcut is broken: what its target says, and what the machine answers to that.
#pragma once

#include <string>

#include "platform/platform.h"

namespace quillvane {

// False for an empty path, and for one that a lookup with folders does not find; then whether it is
// a folder.
[[nodiscard]] bool DirectoryExists(const FileSystem& files, const std::string& path);

// Whether the window lists the shortcut as broken: its target was told, neither lookup sees it, and
// with `leaves_out_removable` (`Check1`) it lies on no removable, remote or CD drive and on no
// share. What could not be loaded is not listed.
[[nodiscard]] bool is_broken(const Platform& platform, const LinkContent& shortcut,
                             bool leaves_out_removable);

// What the console tells of a shortcut, which is finer.
enum class ShortcutVerdict {
  kPresent,      // the target is there
  kMissing,      // its drive or share is there, and it is not
  kUnreachable,  // its drive or share is not there now, or whether it is there cannot be told
  kNotAFile,     // the target is no path: a place of the shell, nothing, or a torn link
};

struct ShortcutFinding {
  ShortcutVerdict verdict = ShortcutVerdict::kNotAFile;
  std::string looked_up;  // the path that was asked for last; empty when none was
};

[[nodiscard]] ShortcutFinding judge_shortcut(const Platform& platform, const LinkContent& shortcut);

// "present", "missing", "unreachable", "not a file".
[[nodiscard]] const char* verdict_text(ShortcutVerdict verdict);

}  // namespace quillvane
