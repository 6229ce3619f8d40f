#include "tests/windows/shown_access.h"

#include <sddl.h>

#include <cstdio>

namespace quillvane {

namespace {

std::string type_name(BYTE type) {
  switch (type) {
    case ACCESS_ALLOWED_ACE_TYPE:
      return "allow";
    case ACCESS_DENIED_ACE_TYPE:
      return "deny";
    default:
      return "type " + std::to_string(type);
  }
}

std::string shown(ACCESS_ALLOWED_ACE& entry, GENERIC_MAPPING* rights) {
  ACCESS_MASK mask = entry.Mask;
  // An entry that is only handed on keeps what it was given.
  if (rights != nullptr && (entry.Header.AceFlags & INHERIT_ONLY_ACE) == 0) {
    MapGenericMask(&mask, rights);
  }
  char mask_text[16];
  std::snprintf(mask_text, sizeof(mask_text), "0x%08lX", mask);
  return type_name(entry.Header.AceType) + " " + std::to_string(entry.Header.AceFlags) + " " +
         mask_text + " " + shown_sid(&entry.SidStart);
}

ShownEntries shown_list(ACL* list, GENERIC_MAPPING* rights) {
  if (list == nullptr) return {"(no list)"};
  ShownEntries entries;
  for (DWORD i = 0; i < list->AceCount; ++i) {
    void* entry = nullptr;
    if (!GetAce(list, i, &entry)) return {"(cannot be read)"};
    entries.push_back(shown(*static_cast<ACCESS_ALLOWED_ACE*>(entry), rights));
  }
  return entries;
}

}  // namespace

ShownEntries shown_entries(ACL* list) { return shown_list(list, nullptr); }

ShownEntries shown_entries(ACL* list, GENERIC_MAPPING rights) { return shown_list(list, &rights); }

std::string shown_sid(PSID sid) {
  char* text = nullptr;
  if (!ConvertSidToStringSidA(sid, &text)) return "(no account)";
  const std::string shown = text;
  LocalFree(text);
  return shown;
}

}  // namespace quillvane
