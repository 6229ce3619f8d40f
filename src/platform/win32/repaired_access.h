// The access lists by which the program gains access: what stands in the old list, and the new
// entries in place of the earlier ones of the same accounts.
#pragma once

#include <windows.h>

#include <cstdint>
#include <span>

#include "platform/win32/access_list.h"

namespace quillvane {

// For a registry key: denials first, then the old entries of the key's own, then what is newly
// allowed, last the entries that the key inherited. Windows expects that order. The key's own
// entries that concern an account of `entries` are dropped.
[[nodiscard]] AccessList key_access_list(const OldAccessList& old,
                                         std::span<const AccessEntry> entries);

enum class ObjectKind : std::uint8_t { kFile, kFolder };

// For a file or folder: the old entries without those of `account`, then `mask` for it. A folder
// gives it through two entries: one that its files inherit, and one of its own that its subfolders
// inherit.
[[nodiscard]] AccessList file_access_list(const OldAccessList& old, PSID account, ACCESS_MASK mask,
                                          ObjectKind kind);

}  // namespace quillvane
