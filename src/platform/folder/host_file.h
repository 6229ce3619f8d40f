// Whole files of the host computer, by host paths: the files that make up a machine folder, not
// those on the machine's drives.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <variant>

namespace quillvane {

// The content, or why it could not be read: std::errc::no_such_file_or_directory without the file,
// no_such_device for what is no file (a pipe, a device), file_too_large beyond `most_bytes`.
[[nodiscard]] std::variant<std::string, std::error_code> read_host_file(const std::string& path,
                                                                        std::size_t most_bytes);

// Makes the file hold exactly `content`: written beside and then put in place, so that a failure
// at any point leaves the old file whole. Its permissions stay.
[[nodiscard]] std::error_code replace_host_file(const std::string& path, std::string_view content);

// How many names lead to what is there, a link itself and not where it leads; nothing when nothing
// is there (any more) or it cannot be asked.
[[nodiscard]] std::optional<std::uint64_t> host_link_count(const std::string& path);

}  // namespace quillvane
