#include "platform/folder/host_staging.h"

#include <windows.h>
#include <winioctl.h>

#include <optional>

#include "platform/folder/win32/host_error.h"
#include "platform/unicode_case.h"
#include "platform/win32/file_content.h"
#include "platform/win32/folder_listing.h"
#include "platform/win32/junction.h"
#include "platform/win32/long_path.h"
#include "platform/win32/system_handle.h"
#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

bool is_there(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::error_code make_folders(const std::wstring& folder) {
  if (is_there(folder) || CreateDirectoryW(folder.c_str(), nullptr)) return {};
  if (GetLastError() != ERROR_PATH_NOT_FOUND) return last_host_error();
  const std::size_t slash = folder.rfind(L'\\');
  if (const std::error_code failed = make_folders(folder.substr(0, slash))) return failed;
  return CreateDirectoryW(folder.c_str(), nullptr) ? std::error_code() : last_host_error();
}

// Where the disk knows no files with holes the file takes its room; that is no failure.
bool set_length(HANDLE file, std::uint64_t bytes) {
  DWORD returned = 0;
  DeviceIoControl(file, FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &returned, nullptr);
  LARGE_INTEGER end;
  end.QuadPart = static_cast<LONGLONG>(bytes);
  return SetFilePointerEx(file, end, nullptr, FILE_BEGIN) && SetEndOfFile(file);
}

bool set_times(HANDLE file, FileTime time) {
  const auto ticks = static_cast<std::uint64_t>(time.ticks);
  const FILETIME both{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32U)};
  return SetFileTime(file, nullptr, &both, &both) != 0;
}

}  // namespace

std::string with_stored_name(const std::string& host_folder, std::string_view name) {
  const std::wstring folder = long_path(host_folder);
  const std::string joined = host_folder + "\\" + std::string(name);
  if (is_there(path_below(folder, widen(name)))) return joined;
  FolderListing listing(path_below(folder, L"*"), FolderListing::ShortNames::kNo);
  while (const WIN32_FIND_DATAW* entry = listing.next()) {
    const std::string stored = narrow(entry->cFileName);
    if (same_name(stored, name)) return host_folder + "\\" + stored;
  }
  return joined;
}

std::string host_folder_of(const std::string& host_path) {
  return host_path.substr(0, host_path.find_last_of("\\/"));
}

std::error_code make_host_folders(const std::string& host_folder) {
  return make_folders(long_path(host_folder));
}

std::error_code make_host_file(const std::string& host_file, const StagedContent& content) {
  const FileHandle file(CreateFileW(long_path(host_file).c_str(), GENERIC_WRITE, 0, nullptr,
                                    CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file.is_valid()) return last_host_error();
  DWORD written = 0;
  const auto length = static_cast<DWORD>(content.text.size());
  if (!WriteFile(file.get(), content.text.data(), length, &written, nullptr))
    return last_host_error();
  if (content.bytes > length && !set_length(file.get(), content.bytes)) return last_host_error();
  if (content.time && !set_times(file.get(), *content.time)) return last_host_error();
  return {};
}

std::error_code make_host_link(const std::string& host_link, const std::string& host_target) {
  const DWORD error = make_junction(long_path(host_link), widen(host_target));
  return error == ERROR_SUCCESS ? std::error_code() : host_error(error);
}

}  // namespace quillvane
