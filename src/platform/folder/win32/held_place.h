// Files and folders of the host, held open while they are worked on.
//
// What is open cannot become something else: the system is asked where it lies, and all that is
// done to it is done through its handle. A folder that is held for what lies in it cannot be
// renamed meanwhile.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "platform/link_budget.h"
#include "platform/win32/system_handle.h"

namespace quillvane {

using HostStatus = BY_HANDLE_FILE_INFORMATION;

// Tells two objects of the host apart, whatever names lead to them.
struct HostIdentity {
  DWORD volume = 0;
  DWORD high = 0;
  DWORD low = 0;

  static HostIdentity of(const HostStatus& status) {
    return {status.dwVolumeSerialNumber, status.nFileIndexHigh, status.nFileIndexLow};
  }
  [[nodiscard]] FolderIdentity key() const { return {volume, std::uint64_t{high} << 32U | low}; }
  friend bool operator==(const HostIdentity&, const HostIdentity&) = default;
};

[[nodiscard]] inline bool is_folder(const HostStatus& status) {
  return (status.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

struct HeldPlace {
  FileHandle handle;
  std::wstring path;  // as the system tells it: "\\?\C:\...", names as stored, without links
  HostStatus status{};

  [[nodiscard]] bool is_folder() const { return quillvane::is_folder(status); }
};

// How a place is opened; what it is and where it lies is told with each.
enum class Access : DWORD {
  kTold = 0,                                      // no more than that
  kPassed = FILE_TRAVERSE,                        // a folder, for what lies in it
  kListed = FILE_LIST_DIRECTORY | FILE_TRAVERSE,  // the same, and its names
  kRead = GENERIC_READ,                           // a file's content
  kChanged = FILE_WRITE_ATTRIBUTES,               // attributes and times
  kMoved = DELETE,                                // removed or given another name
  kRemoved = DELETE | FILE_WRITE_ATTRIBUTES,      // removed, a read-only file too
};

enum class Links { kFollowed, kItself };

// Opens what lies at `path`. Not every host lets a link itself be opened: HeldPlace::path tells
// what was. Nothing when it cannot be opened; GetLastError() has the reason.
[[nodiscard]] std::optional<HeldPlace> open_place(const std::wstring& path, Access access,
                                                  Links links);

// Where an open file or folder lies; empty when the system cannot tell.
[[nodiscard]] std::wstring place_of(HANDLE handle);

}  // namespace quillvane
