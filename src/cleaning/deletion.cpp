#include "cleaning/deletion.h"

#include "cleaning/permission.h"

namespace quillvane {

RemoveResult DeleteAFile(const Platform& platform, std::string& path) {
  changepermission(platform, path);
  return platform.files.remove_file(path);
}

bool StillThere(const Platform& platform, std::string path) {
  changepermission(platform, path);
  const auto size = platform.files.file_size(path);
  if (!size) return false;  // nothing there to be opened or listed either
  if (*size > 0 || platform.files.can_open(path)) return true;
  const auto attributes = platform.files.attributes(path);
  return attributes && (*attributes & (kAttributeHidden | kAttributeSystem)) == 0;
}

}  // namespace quillvane
