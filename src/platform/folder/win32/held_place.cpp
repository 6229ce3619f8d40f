#include "platform/folder/win32/held_place.h"

#include <utility>

namespace quillvane {

namespace {

// Whoever may rename a folder that is gone through could lead the rest of the way elsewhere.
DWORD share_of(Access access) {
  const bool is_held = access == Access::kPassed || access == Access::kListed;
  return FILE_SHARE_READ | FILE_SHARE_WRITE | (is_held ? 0 : FILE_SHARE_DELETE);
}

}  // namespace

std::wstring place_of(HANDLE handle) {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const auto room = static_cast<DWORD>(path.size());
    const DWORD length = GetFinalPathNameByHandleW(handle, path.data(), room, VOLUME_NAME_DOS);
    path.resize(length);
    if (length < room) return path;
  }
}

std::optional<HeldPlace> open_place(const std::wstring& path, Access access, Links links) {
  // Folders can be opened as well with the first flag.
  const DWORD flags =
      FILE_FLAG_BACKUP_SEMANTICS | (links == Links::kItself ? FILE_FLAG_OPEN_REPARSE_POINT : 0);
  HeldPlace place;
  place.handle =
      FileHandle(CreateFileW(path.c_str(), static_cast<DWORD>(access) | FILE_READ_ATTRIBUTES,
                             share_of(access), nullptr, OPEN_EXISTING, flags, nullptr));
  if (!place.handle.is_valid() || !GetFileInformationByHandle(place.handle.get(), &place.status)) {
    return std::nullopt;
  }
  place.path = place_of(place.handle.get());
  if (place.path.empty()) return std::nullopt;
  return place;
}

}  // namespace quillvane
