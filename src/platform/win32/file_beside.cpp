#include "platform/win32/file_beside.h"

#include <cstring>
#include <utility>
#include <vector>

namespace quillvane {

namespace {

// So many files can be written into one folder at the same time, by as many programs.
constexpr int kMostNames = 64;

FileHandle make_new(const std::wstring& path) {
  constexpr DWORD kNeeded = GENERIC_WRITE | DELETE | FILE_READ_ATTRIBUTES;
  return FileHandle(
      CreateFileW(path.c_str(), kNeeded, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
}

// Removes a file that nobody works on any more; false for whatever else bears the name.
bool remove_leftover(const std::wstring& path) {
  const FileHandle left(CreateFileW(path.c_str(), DELETE | FILE_READ_ATTRIBUTES, 0, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  BY_HANDLE_FILE_INFORMATION info;
  if (!left.is_valid() || !GetFileInformationByHandle(left.get(), &info)) return false;
  constexpr DWORD kOther = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  if ((info.dwFileAttributes & kOther) != 0 || info.nNumberOfLinks != 1) return false;
  return remove_when_closed(left.get());
}

}  // namespace

FileBeside make_file_beside(const std::wstring& folder) {
  for (int number = 1; number <= kMostNames; ++number) {
    const std::wstring path = folder + L".quillvane-" + std::to_wstring(number) + L".new";
    FileHandle file = make_new(path);
    if (!file.is_valid() && GetLastError() != ERROR_FILE_EXISTS) return {};
    if (!file.is_valid() && remove_leftover(path)) file = make_new(path);
    if (file.is_valid()) return {path, std::move(file)};
  }
  SetLastError(ERROR_FILE_EXISTS);
  return {};
}

bool move_file(HANDLE file, const std::wstring& path, bool replaces) {
  const std::size_t bytes = path.size() * sizeof(wchar_t);
  // The path stands behind the fields, with a zero that is not counted.
  std::vector<FILE_RENAME_INFO> room((sizeof(FILE_RENAME_INFO) + bytes) / sizeof(FILE_RENAME_INFO) +
                                     1);
  FILE_RENAME_INFO& info = room.front();
  info.ReplaceIfExists = replaces;
  info.FileNameLength = static_cast<DWORD>(bytes);
  std::memcpy(info.FileName, path.data(), bytes);
  return SetFileInformationByHandle(file, FileRenameInfo, &info,
                                    static_cast<DWORD>(sizeof(FILE_RENAME_INFO) + bytes)) != 0;
}

bool remove_when_closed(HANDLE file) {
  FILE_DISPOSITION_INFO info{TRUE};
  return SetFileInformationByHandle(file, FileDispositionInfo, &info, sizeof info) != 0;
}

}  // namespace quillvane
