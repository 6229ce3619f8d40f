// Links among the names of a folder.
#pragma once

#include <string>

#include "platform/folder/posix/directory_listing.h"
#include "platform/folder/posix/drive_folder.h"

namespace quillvane {

// Turns each link of the listing into what it leads to, folder or file, and leaves out those that
// lead nowhere. `path` is that of the listed folder (HostPlace::path).
void follow_links(DirectoryListing& listing, const DriveFolder& drive, const std::string& path);

}  // namespace quillvane
