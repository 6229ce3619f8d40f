#include "platform/win32/junction.h"

#include <windows.h>
#include <winioctl.h>

#include <cstring>
#include <vector>

#include "platform/win32/system_handle.h"

namespace quillvane {

namespace {

// What FSCTL_SET_REPARSE_POINT takes for a junction: this, then both names with a zero each.
struct JunctionHeader {
  ULONG tag;
  USHORT data_bytes;  // of all that follows the next field
  USHORT reserved;
  USHORT target_offset;
  USHORT target_bytes;
  USHORT shown_offset;
  USHORT shown_bytes;
};
static_assert(sizeof(JunctionHeader) == 16);
constexpr std::size_t kUncountedBytes = 8;  // the first three fields

std::vector<char> junction_data(const std::wstring& target) {
  const std::wstring nt_target = L"\\??\\" + target;
  const auto target_bytes = static_cast<USHORT>(nt_target.size() * sizeof(wchar_t));
  const auto shown_bytes = static_cast<USHORT>(target.size() * sizeof(wchar_t));
  const std::size_t total =
      sizeof(JunctionHeader) + target_bytes + shown_bytes + 2 * sizeof(wchar_t);
  const JunctionHeader header{IO_REPARSE_TAG_MOUNT_POINT,
                              static_cast<USHORT>(total - kUncountedBytes),
                              0,
                              0,
                              target_bytes,
                              static_cast<USHORT>(target_bytes + sizeof(wchar_t)),
                              shown_bytes};
  std::vector<char> data(total);
  std::memcpy(data.data(), &header, sizeof(header));
  char* names = data.data() + sizeof(header);
  std::memcpy(names, nt_target.data(), target_bytes);
  std::memcpy(names + header.shown_offset, target.data(), shown_bytes);
  return data;
}

DWORD lead_to(const std::wstring& path, const std::wstring& target) {
  const FileHandle folder(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS,
                                      nullptr));
  if (!folder.is_valid()) return GetLastError();
  std::vector<char> data = junction_data(target);
  DWORD returned = 0;
  const bool done =
      DeviceIoControl(folder.get(), FSCTL_SET_REPARSE_POINT, data.data(),
                      static_cast<DWORD>(data.size()), nullptr, 0, &returned, nullptr);
  return done ? ERROR_SUCCESS : GetLastError();
}

}  // namespace

unsigned long make_junction(const std::wstring& path, const std::wstring& target) {
  if (!CreateDirectoryW(path.c_str(), nullptr)) return GetLastError();
  const DWORD error = lead_to(path, target);
  if (error != ERROR_SUCCESS) RemoveDirectoryW(path.c_str());
  return error;
}

}  // namespace quillvane
