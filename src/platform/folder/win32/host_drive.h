// The host folder that holds one drive of the machine, and the ways to what lies below it.
//
// A way is gone name by name. Each step is opened and the system asked where it came out: outside
// the drive's folder a way leads nowhere, whatever links or exchanges have led it there. Only the
// drive's folder itself may be reached through links.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "platform/folder/win32/held_place.h"

namespace quillvane {

// A name in a folder; what bears it may be a link.
struct HeldEntry {
  HeldPlace folder;
  std::wstring name;  // as stored
};

class HostDrive {
 public:
  // A folder that cannot be opened is a drive on which nothing is found.
  explicit HostDrive(const std::string& host_folder);

  // Goes down the names without regard to case and follows links, the last one too.
  [[nodiscard]] std::optional<HeldPlace> find(std::span<const std::string> names,
                                              Access access) const;

  // The same, but does not follow the last name. Nothing for the drive itself.
  [[nodiscard]] std::optional<HeldEntry> find_entry(std::span<const std::string> names) const;

  // The entry by which a place is stored. Nothing for the drive itself.
  [[nodiscard]] std::optional<HeldEntry> entry_of(const HeldPlace& place) const;

  // Where a stored name leads; links are followed.
  [[nodiscard]] std::optional<HeldPlace> follow(const HeldPlace& folder, const std::wstring& name,
                                                Access access) const;

 private:
  // Opens a path and sees that it came out on the drive.
  [[nodiscard]] std::optional<HeldPlace> open(const std::wstring& path, Access access) const;

  std::wstring root_;  // HeldPlace::path of the drive's folder; empty without one
};

// Opens what bears a stored name: a link itself and not where it leads. Nothing when the host
// cannot do that.
[[nodiscard]] std::optional<HeldPlace> open_itself(const HeldPlace& folder,
                                                   const std::wstring& name, Access access);

}  // namespace quillvane
