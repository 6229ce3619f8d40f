// The steps on the host by which a machine folder gets its files, by host paths. A host path may be
// as long as the host's file system allows.
#pragma once

#include <string>
#include <string_view>
#include <system_error>

#include "platform/folder/machine_staging.h"

namespace quillvane {

// A host path that leads on by `name`: as the folder has it stored, an exact match before one that
// differs by case; as it stands when it is not there.
[[nodiscard]] std::string with_stored_name(const std::string& host_folder, std::string_view name);

// The folder that a host path lies in.
[[nodiscard]] std::string host_folder_of(const std::string& host_path);

// Makes a folder and those above it.
[[nodiscard]] std::error_code make_host_folders(const std::string& host_folder);

// Makes a file or replaces one.
[[nodiscard]] std::error_code make_host_file(const std::string& host_file,
                                             const StagedContent& content);

// Makes a link to a folder, whether that is there or not; std::errc::operation_not_supported where
// the file system knows no links.
[[nodiscard]] std::error_code make_host_link(const std::string& host_link,
                                             const std::string& host_target);

}  // namespace quillvane
