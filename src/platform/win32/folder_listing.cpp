#include "platform/win32/folder_listing.h"

#include <string_view>

namespace quillvane {

FolderListing::FolderListing(const std::wstring& search, ShortNames short_names)
    : find_(FindFirstFileExW(search.c_str(),
                             short_names == ShortNames::kYes ? FindExInfoStandard : FindExInfoBasic,
                             &entry_, FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH)) {
  has_first_ = find_.is_valid();
  // The root of an empty drive has not even the dot entries.
  is_open_ = has_first_ || GetLastError() == ERROR_FILE_NOT_FOUND;
}

const WIN32_FIND_DATAW* FolderListing::next() {
  while (advance()) {
    const std::wstring_view name = entry_.cFileName;
    if (name != L"." && name != L"..") return &entry_;
  }
  return nullptr;
}

bool FolderListing::advance() {
  if (!find_.is_valid()) return false;
  if (has_first_) {
    has_first_ = false;
    return true;
  }
  return FindNextFileW(find_.get(), &entry_) != 0;
}

}  // namespace quillvane
