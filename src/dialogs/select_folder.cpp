#include "dialogs/select_folder.h"

#include "support/shell_helpers.h"
#include "support/text.h"

namespace quillvane {

namespace {

constexpr int kThisPc = 0x11;  // has no path, so the dialog begins at the top

}  // namespace

std::optional<std::string> select_folder(const Platform& platform) {
  std::string path =
      BrowseForFolder(platform.dialogs, platform.shell, "Select a folder:", 0, kThisPc);
  if (Trim(path).empty()) return std::nullopt;
  return path;
}

}  // namespace quillvane
