#include "platform/win32/link_guard.h"

#include <algorithm>

#include "platform/win32/system_handle.h"

namespace quillvane {

bool LinkGuard::enter(const std::wstring& path, bool is_link) {
  Level level{path.size(), is_link || (!levels_.empty() && levels_.back().is_behind_link), {}};
  if (level.is_behind_link) {
    level.id = id_of(path);
    if (level.id && is_on_the_way(*level.id, path)) return false;
  }
  levels_.push_back(level);
  return true;
}

std::optional<LinkGuard::FolderId> LinkGuard::id_of(const std::wstring& path) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  // No access is asked for: the number is told to everybody. Links are followed.
  const FileHandle folder(CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION information;
  if (!folder.is_valid() || !GetFileInformationByHandle(folder.get(), &information)) {
    return std::nullopt;
  }
  return FolderId{information.dwVolumeSerialNumber, information.nFileIndexHigh,
                  information.nFileIndexLow};
}

bool LinkGuard::is_on_the_way(const FolderId& id, const std::wstring& path) {
  return std::any_of(levels_.begin(), levels_.end(), [&](Level& level) {
    if (!level.id) level.id = id_of(path.substr(0, level.path_length));
    return level.id == id;
  });
}

}  // namespace quillvane
