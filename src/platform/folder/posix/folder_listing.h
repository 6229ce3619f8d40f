// The entries of one folder of a drive, with all that a listing tells about each.
#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/folder/posix/drive_folder.h"

namespace quillvane {

// Those whose names match, in the order of NTFS. Empty when the folder cannot be read.
[[nodiscard]] std::vector<FolderEntry> list_entries(const DriveFolder& drive, HostPlace folder,
                                                    const std::string& pattern);

}  // namespace quillvane
