// Access lists as tests write them down: "deny 10 0x10000000 S-1-1-0" is an entry's type, its
// flags, its mask and its account.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace quillvane {

using ShownEntries = std::vector<std::string>;

[[nodiscard]] ShownEntries shown_entries(ACL* list);

// The same for an object that knows rights of its own kind. Windows may store "generic all" as all
// the rights of the kind; both are shown as those.
[[nodiscard]] ShownEntries shown_entries(ACL* list, GENERIC_MAPPING rights);

[[nodiscard]] std::string shown_sid(PSID sid);

}  // namespace quillvane
