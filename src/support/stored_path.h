// Paths as they are stored in the registry, turned into ones that this process can open.
#pragma once

#include <string>

#include "platform/environment.h"

namespace quillvane {

// Expands the environment references of `path`. A 32-bit program on 64-bit Windows also leads
// "system32" past the redirection ("Sysnative") and "Program Files" to the 64-bit one; there the
// path comes out in lower case but for what the expansion brings in. There `path` itself is changed
// as well: afterwards it holds the text that was expanded.
[[nodiscard]] std::string GetPath(const Environment& environment, bool is_64_bit,
                                  std::string& path);

// The folder for temporary files, with its backslash; empty when none is set.
[[nodiscard]] std::string GetTempDir(const Environment& environment);

}  // namespace quillvane
