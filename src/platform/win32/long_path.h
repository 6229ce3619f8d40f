// Paths for the wide calls of Windows without the limit of 260 units.
#pragma once

#include <string>
#include <string_view>

namespace quillvane {

// The path in the form that Windows takes whatever its length ("\\?\C:\Temp"); both kinds of slash
// part names. In that form every name means itself, "con" and "." too, so an absolute path has to
// be without the latter. One of that form stays as it is.
[[nodiscard]] std::wstring long_path(std::string_view path);

// A name below a folder. Only a disk's root has a backslash at its end already.
[[nodiscard]] std::wstring path_below(std::wstring_view folder, std::wstring_view name);

}  // namespace quillvane
