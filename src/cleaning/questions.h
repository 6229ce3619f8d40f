// The titles of the program's questions, by which a view that answers in advance tells them apart.
#pragma once

namespace quillvane {

inline constexpr const char* kCloseBrowserTitle = "confirmation";
inline constexpr const char* kRemoveFilesTitle = "Please Confirm";

}  // namespace quillvane
