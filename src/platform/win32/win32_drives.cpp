#include "platform/win32/win32_drives.h"

#include <windows.h>

#include "platform/win32/wide_text.h"

namespace quillvane {

std::vector<std::string> Win32Drives::list() const {
  std::vector<std::string> drives;
  const DWORD present = GetLogicalDrives();
  for (unsigned index = 0; index < 26; ++index) {
    if ((present >> index & 1U) != 0) drives.push_back({static_cast<char>('A' + index), ':'});
  }
  return drives;
}

DriveType Win32Drives::type(const std::string& root) const {
  return static_cast<DriveType>(GetDriveTypeW(widen(root).c_str()));
}

std::optional<DriveSpace> Win32Drives::space(const std::string& root) const {
  ULARGE_INTEGER available;  // to this user, which is what "free" means to him
  ULARGE_INTEGER total;
  if (!GetDiskFreeSpaceExW(widen(root).c_str(), &available, &total, nullptr)) return std::nullopt;
  return DriveSpace{total.QuadPart, available.QuadPart};
}

}  // namespace quillvane
