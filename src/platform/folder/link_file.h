// Shell link files, as Microsoft publishes their format: what the program reads of one.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/code_page.h"
#include "platform/environment.h"
#include "platform/links.h"

namespace quillvane {

// The link that these bytes are; nothing when they are none, or a torn one. Texts without the mark
// of UTF-16 are in `page`. The target is the path of the link info, local or on a share, otherwise
// the file of the item list, otherwise the path with references to `environment`, expanded;
// otherwise it is empty. Texts are whole.
[[nodiscard]] std::optional<LinkContent> parse_link(std::string_view bytes, const CodePage& page,
                                                    const Environment& environment);

// The path of an item list (the items without the size before them), empty when it leads to no file
// or folder; nothing when the items do not fit into each other.
[[nodiscard]] std::optional<std::string> path_of_items(std::string_view items,
                                                       const CodePage& page);

// The path of a link info (with its size), empty when it has none; nothing when it is torn.
[[nodiscard]] std::optional<std::string> path_of_link_info(std::string_view info,
                                                           const CodePage& page);

}  // namespace quillvane
