// The files on the host that a registry's store consists of.
//
// A machine folder may come from anybody. The database writes into what stands beside the store
// under its names, so nothing may stand there that is also a file elsewhere.
#pragma once

#include <optional>
#include <string>

namespace quillvane {

// Why the store in `file` must not be opened; nothing when it may, or is not there.
[[nodiscard]] std::optional<std::string> registry_files_problem(const std::string& file);

}  // namespace quillvane
