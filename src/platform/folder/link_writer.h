// Shell link files are put together here, from parts that each may be there or not.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/code_page.h"
#include "platform/links.h"

namespace quillvane {

// What is known of the target when its link is written.
struct LinkTarget {
  std::uint32_t attributes = 0;  // 0: it is missing
  std::uint32_t size_bytes = 0;  // the lower 32 bits
};

// The parts of a link file; those that are absent are left out of it.
struct LinkParts {
  LinkTarget target = {};
  std::optional<std::string> items = {};  // made by one of the functions below
  std::optional<std::string> info = {};
  std::optional<std::string> description = {};
  std::optional<std::string> working_directory = {};
  std::optional<std::string> arguments = {};
  std::optional<std::string> icon_file = {};
  std::optional<std::string> environment_path = {};  // such as "%WinDir%\notepad.exe"
  int icon_index = 0;
  int show_command = 1;
};

// The file's bytes; nothing when a text is too long for the format. Bytes of the environment path
// above ASCII go to its wide half alone.
[[nodiscard]] std::optional<std::string> link_bytes(const LinkParts& parts);

// The item list of an absolute path on a drive: computer, drive, folders, and the target itself. A
// text that `page` cannot say is in UTF-16 alone.
[[nodiscard]] std::string items_of_path(std::string_view path, const LinkTarget& target,
                                        const CodePage& page);

// The item list of a place that only the shell has, by the 16 bytes of its class identifier.
[[nodiscard]] std::string items_of_class(std::string_view class_id);

// The link info of a path on a drive, and of one on a share ("\\server\share" and what lies below).
[[nodiscard]] std::string info_of_path(std::string_view path, const CodePage& page);
[[nodiscard]] std::string info_of_share(std::string_view share, std::string_view suffix,
                                        const CodePage& page);

// The bytes of a link to a file on a drive or a share; nothing when its target is neither, or when
// it or another text is too long.
[[nodiscard]] std::optional<std::string> link_to_file(const LinkContent& content,
                                                      const LinkTarget& target,
                                                      const CodePage& page);

}  // namespace quillvane
