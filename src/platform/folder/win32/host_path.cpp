#include "platform/folder/host_path.h"

#include "platform/win32/wide_text.h"

namespace quillvane {

// The standard library's own way takes the text to be of the PC's code page.
std::filesystem::path host_path(std::string_view text) { return widen(text); }

std::string host_text(const std::filesystem::path& path) { return narrow(path.native()); }

}  // namespace quillvane
