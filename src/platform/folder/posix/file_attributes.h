// Windows' attributes of a file of the host. They live in the extended attribute "user.DOSATTRIB"
// as text ("0x21"). Without one, a file is read-only when its owner may not write it, and archive.
// On a mounted NTFS disk they are those of the disk.
#pragma once

#include <cstdint>
#include <string>

#include "platform/folder/posix/drive_folder.h"

namespace quillvane {

// Of a file or folder, not a link. 0x80 for a file that has none.
[[nodiscard]] std::uint32_t read_file_attributes(const HostPlace& place);

// The same for a file of that name in a folder, without opening it. `status` is the file's own.
[[nodiscard]] std::uint32_t read_file_attributes(const HostPlace& folder, const std::string& name,
                                                 const HostStatus& status);

// Replaces those that can be set. Where the host keeps no extended attributes, only read-only is
// kept, as the owner's right to write. False when the host refuses.
[[nodiscard]] bool write_file_attributes(const HostPlace& place, std::uint32_t bits);

// Gives an open file the attributes that `from` has stored, if any.
void copy_file_attributes(const HostPlace& from, int to);

}  // namespace quillvane
