#include "platform/folder/host_path.h"

namespace quillvane {

std::filesystem::path host_path(std::string_view text) { return text; }

std::string host_text(const std::filesystem::path& path) { return path.native(); }

}  // namespace quillvane
