// Puts folders and files onto the drives of a machine folder from outside, as its earlier life has
// left them: for new machines, demonstrations and tests. What the program itself does to files
// goes through MachineFiles.
//
// Names that are there already are used without regard to case; others are made as written.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/file_time.h"
#include "platform/folder/machine_state.h"

namespace quillvane {

// Where a path of the machine ("C:\Temp\a.tmp") lies on the host, or would lie. Nothing when the
// machine has no such drive or the path is none.
[[nodiscard]] std::optional<std::string> host_path_of(const MachineState& machine,
                                                      std::string_view path);

// Makes a folder and those above it, the drive's included.
[[nodiscard]] std::error_code stage_folder(const MachineState& machine, std::string_view path);

struct StagedContent {
  std::string_view text;
  std::uint64_t bytes = 0;  // length of the file when it is more than the text's; takes no room
  std::optional<FileTime> time;  // of its last write and access; now without one
};

// Makes a file and the folders above it; one that is there is replaced.
[[nodiscard]] std::error_code stage_file(const MachineState& machine, std::string_view path,
                                         const StagedContent& content);

// Makes a junction, which leads to the folder `target` of the same drive whether it is there or
// not.
[[nodiscard]] std::error_code stage_junction(const MachineState& machine, std::string_view path,
                                             std::string_view target);

}  // namespace quillvane
