// Junctions: folders that lead to another folder of this PC.
#pragma once

#include <string>

namespace quillvane {

// Makes a junction at `path` that leads to the folder `target`, whether that is there or not; the
// latter is absolute and without "\\?\". 0, or Windows' error; then nothing is left at `path`.
[[nodiscard]] unsigned long make_junction(const std::wstring& path, const std::wstring& target);

}  // namespace quillvane
