#include "support/shell_helpers.h"

namespace quillvane {

namespace {

constexpr std::uint32_t kFileSystemFoldersOnly = 1;  // BIF_RETURNONLYFSDIRS
constexpr double kTwoTo32 = 4294967296.0;

double unsigned_half(std::int32_t half) { return half < 0 ? half + kTwoTo32 : half; }

}  // namespace

int OpenFolder(Shell& shell, const std::string& path) {
  return shell.open({"Open", path, "C:\\", kShowNormal});
}

bool ShowFileProperties(Shell& shell, const std::string& path) {
  return shell.show_properties(path);
}

std::string SpecialFolderPath(const Shell& shell, int id) { return shell.special_folder(id); }

std::string BrowseForFolder(Dialogs& dialogs, const Shell& shell, const std::string& title,
                            std::uint32_t flags, int root_id) {
  const std::uint32_t wanted = flags == 0 ? kFileSystemFoldersOnly : flags;
  return dialogs.browse_folder(title, wanted, SpecialFolderPath(shell, root_id));
}

double LargeToDouble(std::int32_t low, std::int32_t high) {
  return unsigned_half(high) * kTwoTo32 + unsigned_half(low);
}

}  // namespace quillvane
