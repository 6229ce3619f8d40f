// Errors of Windows after which nobody knows whether a file is there.
#pragma once

#include <windows.h>

namespace quillvane {

// The disk or the way to it fails, or may not be gone: nothing was learned of the file.
[[nodiscard]] inline bool cannot_be_told(DWORD error) {
  switch (error) {
    case ERROR_ACCESS_DENIED:
    case ERROR_CRC:
    case ERROR_SEEK:
    case ERROR_SECTOR_NOT_FOUND:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_NOT_READY:
    case ERROR_IO_DEVICE:
    case ERROR_DEV_NOT_EXIST:
    case ERROR_DEVICE_NOT_CONNECTED:
    case ERROR_FILE_CORRUPT:
    case ERROR_DISK_CORRUPT:
    case ERROR_UNRECOGNIZED_VOLUME:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_NETNAME_DELETED:
    case ERROR_UNEXP_NET_ERR:
    case ERROR_SEM_TIMEOUT:
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_NO_SYSTEM_RESOURCES:
    case ERROR_TOO_MANY_OPEN_FILES:
      return true;
    default:
      return false;
  }
}

}  // namespace quillvane
