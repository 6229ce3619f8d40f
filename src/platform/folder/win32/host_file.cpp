#include "platform/folder/host_file.h"

#include <windows.h>

#include <cstdint>

#include "platform/folder/win32/host_error.h"
#include "platform/win32/file_content.h"
#include "platform/win32/long_path.h"
#include "platform/win32/system_handle.h"

namespace quillvane {

namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

}  // namespace

std::variant<std::string, std::error_code> read_host_file(const std::string& path,
                                                          std::size_t most_bytes) {
  const FileHandle file(CreateFileW(long_path(path).c_str(), GENERIC_READ, kShareAll, nullptr,
                                    OPEN_EXISTING, 0, nullptr));
  if (!file.is_valid()) return last_host_error();
  if (GetFileType(file.get()) != FILE_TYPE_DISK) {
    return std::make_error_code(std::errc::no_such_device);
  }
  LARGE_INTEGER size;
  if (!GetFileSizeEx(file.get(), &size)) return last_host_error();
  if (static_cast<std::uint64_t>(size.QuadPart) > most_bytes) {
    return std::make_error_code(std::errc::file_too_large);
  }
  const FileContent content = read_to_end(file.get(), most_bytes);
  if (content) return *content;
  if (content == ReadFailure::kTooLarge) return std::make_error_code(std::errc::file_too_large);
  return last_host_error();
}

std::error_code replace_host_file(const std::string& path, std::string_view content) {
  if (replace_whole_file(long_path(path), content)) return {};
  return last_host_error();
}

std::optional<std::uint64_t> host_link_count(const std::string& path) {
  const FileHandle file(CreateFileW(long_path(path).c_str(), 0, kShareAll, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  BY_HANDLE_FILE_INFORMATION facts;
  if (!file.is_valid() || !GetFileInformationByHandle(file.get(), &facts)) return std::nullopt;
  return facts.nNumberOfLinks;
}

}  // namespace quillvane
