// Small routines over the system's shell.
#pragma once

#include <cstdint>
#include <string>

#include "platform/dialogs.h"
#include "platform/shell.h"

namespace quillvane {

// Opens a folder or file as a double click does. Answers what the shell answered: above 32 when it
// was opened.
int OpenFolder(Shell& shell, const std::string& path);

// Shows the properties sheet of a file. False when it could not be shown.
bool ShowFileProperties(Shell& shell, const std::string& path);

// Path of a special folder by its number (CSIDL); empty when there is none.
[[nodiscard]] std::string SpecialFolderPath(const Shell& shell, int id);

// Lets the user choose a folder below the special folder `root_id`, or anywhere when that has no
// path. Flags of 0 ask for folders of the file system only. Empty when cancelled.
[[nodiscard]] std::string BrowseForFolder(Dialogs& dialogs, const Shell& shell,
                                          const std::string& title, std::uint32_t flags,
                                          int root_id);

// A 64-bit number from its two halves, each read as signed; a negative half has 2 to the power 32
// added.
[[nodiscard]] double LargeToDouble(std::int32_t low, std::int32_t high);

}  // namespace quillvane
