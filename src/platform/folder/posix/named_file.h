// What stands under a name of a drive: a file or folder itself, or a link to one.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/folder/posix/drive_folder.h"

namespace quillvane {

struct NamedFile {
  HostPlace named;                  // what bears the name
  std::optional<HostPlace> target;  // where it leads, when it is a link

  [[nodiscard]] bool is_link() const { return target.has_value(); }
  [[nodiscard]] const HostPlace& place() const { return target ? *target : named; }

  // Those of a link say no more than whether it leads to a folder: its target's are not its own.
  [[nodiscard]] std::uint32_t attributes() const;
};

// Nothing for a name that is gone, a link that leads nowhere, and what is neither file nor folder;
// errno has the reason as with DriveFolder.
[[nodiscard]] std::optional<NamedFile> open_named(const DriveFolder& drive, const HostEntry& entry);

}  // namespace quillvane
