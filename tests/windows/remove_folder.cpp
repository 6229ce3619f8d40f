#include <gtest/gtest.h>
#include <windows.h>

#include "platform/win32/long_path.h"
#include "platform/win32/system_handle.h"
#include "platform/win32/wide_text.h"
#include "tests/support/remove_folder.h"

namespace quillvane {

namespace {

void remove_folder(const std::wstring& folder) {
  WIN32_FIND_DATAW entry;
  {
    const FindHandle find(FindFirstFileW((folder + L"\\*").c_str(), &entry));
    while (find.is_valid()) {
      const std::wstring name = entry.cFileName;
      const std::wstring path = folder + L"\\" + name;
      const bool is_folder = (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
      if ((entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
        ADD_FAILURE() << narrow(path) << " is a link";
        return;
      }
      if (is_folder && name != L"." && name != L"..") remove_folder(path);
      if (!is_folder) {
        SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
        EXPECT_TRUE(DeleteFileW(path.c_str())) << narrow(path);
      }
      if (!FindNextFileW(find.get(), &entry)) break;
    }
  }
  SetFileAttributesW(folder.c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_TRUE(RemoveDirectoryW(folder.c_str())) << narrow(folder);
}

}  // namespace

void remove_test_folder(const std::string& folder) { remove_folder(long_path(folder)); }

}  // namespace quillvane
