#include "platform/folder/posix/folder_contents.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <vector>

namespace quillvane {

namespace {

struct CloseFolder {
  void operator()(DIR* folder) const { closedir(folder); }
};
using OpenFolder = std::unique_ptr<DIR, CloseFolder>;

std::vector<std::string> names_in(DIR* folder) {
  std::vector<std::string> names;
  while (const dirent* entry = readdir(folder)) {
    const std::string name = entry->d_name;
    if (name != "." && name != "..") names.push_back(name);
  }
  return names;
}

using IsKept = std::function<bool(const HostIdentity&)>;

bool names_kept_file(int folder, const std::string& name, const IsKept& is_kept) {
  HostStatus status;
  const bool is_known =
      statx(folder, name.c_str(), AT_SYMLINK_NOFOLLOW, STATX_TYPE | STATX_INO, &status) == 0;
  return is_known && S_ISREG(status.stx_mode) && is_kept(HostIdentity::of(status));
}

// Takes over `descriptor`, a folder open for reading.
void remove_names(int descriptor, const IsKept& is_kept) {
  const OpenFolder folder(fdopendir(descriptor));
  if (folder == nullptr) {
    close(descriptor);
    return;
  }
  const int here = dirfd(folder.get());
  for (const std::string& name : names_in(folder.get())) {
    if (names_kept_file(here, name, is_kept)) continue;
    if (unlinkat(here, name.c_str(), 0) == 0) continue;
    const int below = openat(here, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (below < 0) continue;
    remove_names(below, is_kept);
    unlinkat(here, name.c_str(), AT_REMOVEDIR);
  }
}

}  // namespace

void remove_folder_contents(const HostPlace& folder, const IsKept& is_kept) {
  const int readable =
      openat(folder.object.number(), ".", O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (readable >= 0) remove_names(readable, is_kept);
}

}  // namespace quillvane
