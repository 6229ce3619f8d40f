// Links from one folder to another, for tests on Windows.
#pragma once

#include <string>

namespace quillvane {

// Makes a junction at `path` that leads to the folder `target`. Under Wine, which knows no
// junctions, a symbolic link of the host, which Wine shows as one.
[[nodiscard]] bool make_folder_link(const std::wstring& path, const std::wstring& target);

// Removes a link that make_folder_link made; the folder it leads to stays as it is.
[[nodiscard]] bool remove_folder_link(const std::wstring& path);

}  // namespace quillvane
