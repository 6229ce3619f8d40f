// Windows' errors in the words of the standard library, where it has some for them.
#pragma once

#include <windows.h>

#include <system_error>

namespace quillvane {

[[nodiscard]] inline std::error_code host_error(DWORD error) {
  switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      return std::make_error_code(std::errc::no_such_file_or_directory);
    case ERROR_ACCESS_DENIED:
      return std::make_error_code(std::errc::permission_denied);
    case ERROR_INVALID_FUNCTION:  // what a disk answers that knows no such thing
    case ERROR_NOT_SUPPORTED:
      return std::make_error_code(std::errc::operation_not_supported);
    default:
      return {static_cast<int>(error), std::system_category()};
  }
}

[[nodiscard]] inline std::error_code last_host_error() { return host_error(GetLastError()); }

}  // namespace quillvane
