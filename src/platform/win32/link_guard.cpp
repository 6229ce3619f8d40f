#include "platform/win32/link_guard.h"

#include <algorithm>

#include "platform/win32/system_handle.h"

namespace quillvane {

LinkGuard::Step LinkGuard::enter(const std::wstring& path, bool is_link) {
  Level level{
      path.size(), is_link || (!levels_.empty() && levels_.back().is_behind_link), false, {}};
  if (level.is_behind_link) level.id = id_of(path);
  if (level.id) {
    if (is_on_the_way(*level.id, path)) return Step::kLoop;
    const LinkBudget::Entry entry = links_.enter(*level.id, is_link);
    if (entry == LinkBudget::Entry::kPassedOver) return Step::kPassedOver;
    level.is_read_again = entry == LinkBudget::Entry::kAgain;
  }
  levels_.push_back(level);
  return Step::kEntered;
}

std::optional<FolderIdentity> LinkGuard::id_of(const std::wstring& path) {
  constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  // No access is asked for: the number is told to everybody. Links are followed.
  const FileHandle folder(CreateFileW(path.c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS, nullptr));
  BY_HANDLE_FILE_INFORMATION information;
  if (!folder.is_valid() || !GetFileInformationByHandle(folder.get(), &information)) {
    return std::nullopt;
  }
  return FolderIdentity{
      information.dwVolumeSerialNumber,
      std::uint64_t{information.nFileIndexHigh} << 32U | information.nFileIndexLow};
}

bool LinkGuard::is_on_the_way(const FolderIdentity& id, const std::wstring& path) {
  return std::any_of(levels_.begin(), levels_.end(), [&](Level& level) {
    if (!level.id) level.id = id_of(path.substr(0, level.path_length));
    return level.id == id;
  });
}

}  // namespace quillvane
