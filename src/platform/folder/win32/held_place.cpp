#include "platform/folder/win32/held_place.h"

#include <winternl.h>

#include <array>
#include <string_view>
#include <utility>

namespace quillvane {

namespace {

// Whoever may rename a folder that is gone through could lead the rest of the way elsewhere.
DWORD share_of(Access access) {
  const bool is_held = access == Access::kPassed || access == Access::kListed;
  return FILE_SHARE_READ | FILE_SHARE_WRITE | (is_held ? 0 : FILE_SHARE_DELETE);
}

// Wine cannot tell a path of more than 260 units by the usual call. The kernel's own name of a file
// is the same path there; on Windows it is none that could be opened.
std::wstring long_place_of(HANDLE handle) {
  constexpr std::wstring_view kFront = L"\\??\\";
  alignas(OBJECT_NAME_INFORMATION) std::array<char, 70'000> answer;  // more than any name
  ULONG length = 0;
  if (NtQueryObject(handle, ObjectNameInformation, answer.data(), answer.size(), &length) < 0) {
    return {};
  }
  const auto* name = &reinterpret_cast<const OBJECT_NAME_INFORMATION*>(answer.data())->Name;
  const std::wstring_view path(name->Buffer, name->Length / sizeof(wchar_t));
  if (!path.starts_with(kFront)) return {};
  return L"\\\\?\\" + std::wstring(path.substr(kFront.size()));
}

}  // namespace

std::wstring place_of(HANDLE handle) {
  std::wstring path(MAX_PATH, L'\0');
  for (;;) {
    const auto room = static_cast<DWORD>(path.size());
    const DWORD length = GetFinalPathNameByHandleW(handle, path.data(), room, VOLUME_NAME_DOS);
    if (length == 0) return GetLastError() == ERROR_MORE_DATA ? long_place_of(handle) : L"";
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
