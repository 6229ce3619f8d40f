#include "platform/win32/access_list.h"

#include <cstring>

namespace quillvane {

namespace {

constexpr DWORD kLastEntry = MAXDWORD;  // appends to the end

// Entries of these kinds hold their SID behind the mask; others have something else there.
bool has_sid_behind_mask(const ACE_HEADER& entry) {
  switch (entry.AceType) {
    case ACCESS_ALLOWED_ACE_TYPE:
    case ACCESS_DENIED_ACE_TYPE:
    case SYSTEM_AUDIT_ACE_TYPE:
    case SYSTEM_ALARM_ACE_TYPE:
    case ACCESS_ALLOWED_CALLBACK_ACE_TYPE:
    case ACCESS_DENIED_CALLBACK_ACE_TYPE:
      return true;
    default:
      return false;
  }
}

}  // namespace

std::optional<OldAccessList> read_access_list(ACL* list) {
  ACL_SIZE_INFORMATION size;
  if (!GetAclInformation(list, &size, sizeof(size), AclSizeInformation)) return std::nullopt;
  OldAccessList old;
  old.bytes = size.AclBytesInUse;
  for (DWORD i = 0; i < size.AceCount; ++i) {
    void* entry = nullptr;
    if (!GetAce(list, i, &entry)) return std::nullopt;
    old.entries.push_back(static_cast<ACE_HEADER*>(entry));
  }
  return old;
}

bool concerns(const ACE_HEADER* entry, PSID sid) {
  if (!has_sid_behind_mask(*entry)) return false;
  const auto* known = reinterpret_cast<const ACCESS_ALLOWED_ACE*>(entry);
  return EqualSid(const_cast<DWORD*>(&known->SidStart), sid) != FALSE;
}

DWORD entry_bytes(PSID sid) {
  return static_cast<DWORD>(offsetof(ACCESS_ALLOWED_ACE, SidStart)) + GetLengthSid(sid);
}

AccessList::AccessList(DWORD bytes)
    : bytes_(bytes), is_whole_(InitializeAcl(list(), bytes, ACL_REVISION) != FALSE) {}

void AccessList::append(const AccessEntry& entry) {
  const DWORD bytes = entry_bytes(entry.sid);
  const ACCESS_ALLOWED_ACE head{
      {entry.type, entry.flags, static_cast<WORD>(bytes)}, entry.mask, /*SidStart=*/0};
  std::vector<std::byte> whole(bytes);
  constexpr std::size_t kSidOffset = offsetof(ACCESS_ALLOWED_ACE, SidStart);
  std::memcpy(whole.data(), &head, kSidOffset);
  std::memcpy(whole.data() + kSidOffset, entry.sid, bytes - kSidOffset);
  append_copy(reinterpret_cast<ACE_HEADER*>(whole.data()));
}

void AccessList::append_copy(ACE_HEADER* entry) {
  is_whole_ = is_whole_ && AddAce(list(), ACL_REVISION, kLastEntry, entry, entry->AceSize) != FALSE;
}

}  // namespace quillvane
