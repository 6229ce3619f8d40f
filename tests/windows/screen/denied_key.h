// A key of the registry that may not be written, for the length of a test.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <sddl.h>

namespace quillvane {

class DeniedKey {
 public:
  // Makes the key below HKEY_LOCAL_MACHINE, if it is not there. It may be read and its rights may
  // be changed, by anybody.
  explicit DeniedKey(const wchar_t* path) {
    EXPECT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, path, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                              &key_, nullptr),
              ERROR_SUCCESS);
    set_rights(L"D:(A;;KRWD;;;WD)");
    HKEY opened = nullptr;
    EXPECT_EQ(RegOpenKeyExW(HKEY_LOCAL_MACHINE, path, 0, KEY_SET_VALUE, &opened),
              ERROR_ACCESS_DENIED);
  }
  ~DeniedKey() {
    set_rights(L"D:(A;;KA;;;WD)");
    RegCloseKey(key_);
  }
  DeniedKey(const DeniedKey&) = delete;
  DeniedKey& operator=(const DeniedKey&) = delete;

 private:
  void set_rights(const wchar_t* text) const {
    PSECURITY_DESCRIPTOR rights = nullptr;
    EXPECT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(text, SDDL_REVISION_1, &rights,
                                                                     nullptr));
    EXPECT_EQ(RegSetKeySecurity(key_, DACL_SECURITY_INFORMATION, rights), ERROR_SUCCESS);
    LocalFree(rights);
  }

  HKEY key_ = nullptr;
};

}  // namespace quillvane
