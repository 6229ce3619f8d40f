#include "platform/win32/repaired_access.h"

#include <algorithm>

namespace quillvane {

namespace {

bool is_inherited(const ACE_HEADER* entry) { return (entry->AceFlags & INHERITED_ACE) != 0; }

}  // namespace

AccessList key_access_list(const OldAccessList& old, std::span<const AccessEntry> entries) {
  DWORD bytes = old.bytes;
  for (const AccessEntry& entry : entries) bytes += entry_bytes(entry.sid);
  AccessList list(bytes);

  for (const AccessEntry& entry : entries) {
    if (entry.type != ACCESS_ALLOWED_ACE_TYPE) list.append(entry);
  }
  const auto first_inherited = std::find_if(old.entries.begin(), old.entries.end(), is_inherited);
  std::for_each(old.entries.begin(), first_inherited, [&](ACE_HEADER* own) {
    const bool is_replaced =
        std::any_of(entries.begin(), entries.end(),
                    [own](const AccessEntry& entry) { return concerns(own, entry.sid); });
    if (!is_replaced) list.append_copy(own);
  });
  for (const AccessEntry& entry : entries) {
    if (entry.type == ACCESS_ALLOWED_ACE_TYPE) list.append(entry);
  }
  std::for_each(first_inherited, old.entries.end(),
                [&](ACE_HEADER* entry) { list.append_copy(entry); });
  return list;
}

AccessList file_access_list(const OldAccessList& old, PSID account, ACCESS_MASK mask,
                            ObjectKind kind) {
  AccessList list(old.bytes + 2 * entry_bytes(account));
  for (ACE_HEADER* entry : old.entries) {
    if (!concerns(entry, account)) list.append_copy(entry);
  }
  if (kind == ObjectKind::kFile) {
    list.append({ACCESS_ALLOWED_ACE_TYPE, /*flags=*/0, mask, account});
    return list;
  }
  list.append({ACCESS_ALLOWED_ACE_TYPE, OBJECT_INHERIT_ACE | INHERIT_ONLY_ACE, mask, account});
  list.append({ACCESS_ALLOWED_ACE_TYPE, CONTAINER_INHERIT_ACE, mask, account});
  return list;
}

}  // namespace quillvane
