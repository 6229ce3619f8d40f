// The files of a Windows machine held in a folder: one host folder for each drive.
//
// Names are found without regard to case; an exact match wins. A link of the host is a junction.
// One that leads out of its drive's folder leads nowhere and is as if it were missing, like
// everything that is neither file nor folder: nothing outside the drives' folders is ever read or
// removed, and no exchange of a folder for a link while a call runs can change that.
//
// A path of 260 UTF-16 units or more cannot be opened or listed; for a listing the pattern counts.
//
// A link to a file is archive and no more, and nothing can be set on a link: what its target has is
// not the link's. What is written goes to the file that the link leads to. A link itself is what
// gets a new name or is removed; one to a folder is denied, as a folder is. Only on the same drive
// a file gets another name.
//
// Each system that a machine folder can lie on has its own way to its files; the build picks it.
#pragma once

#include <memory>
#include <string>

#include "platform/file_system.h"
#include "platform/folder/machine_state.h"

namespace quillvane {

class MachineFiles : public FileSystem {
 public:
  // Removes all that lies in a folder, but not the folder; links go themselves, and what cannot be
  // removed stays. For the emptying of the recycle bin.
  virtual void remove_contents(const std::string& folder) = 0;
};

// The machine is looked at anew by each call: its drives, the files in use, the folders that cannot
// be listed and its width. It must outlive the result.
[[nodiscard]] std::unique_ptr<MachineFiles> make_machine_files(const MachineState& machine);

}  // namespace quillvane
