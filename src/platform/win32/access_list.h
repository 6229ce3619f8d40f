// Access control lists: what Windows handed out is read entry by entry, a new one is built.
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace quillvane {

// One entry of a new list. `sid` must outlive the building.
struct AccessEntry {
  BYTE type;   // ACCESS_ALLOWED_ACE_TYPE or ACCESS_DENIED_ACE_TYPE
  BYTE flags;  // who inherits it: CONTAINER_INHERIT_ACE and the like
  ACCESS_MASK mask;
  PSID sid;
};

// The entries of a list, as they lie in it. Nothing when Windows does not take it for a list.
struct OldAccessList {
  std::vector<ACE_HEADER*> entries;
  DWORD bytes = 0;  // that they and the list's head take
};
[[nodiscard]] std::optional<OldAccessList> read_access_list(ACL* list);

// Whether the entry is about `sid`.
[[nodiscard]] bool concerns(const ACE_HEADER* entry, PSID sid);

// Bytes that an entry with this SID takes in a list.
[[nodiscard]] DWORD entry_bytes(PSID sid);

// A list under construction, each entry appended behind the others. A step that fails leaves no
// list: what would lack an entry is not handed out.
class AccessList {
 public:
  // With room for all that will be appended, the list's head included.
  explicit AccessList(DWORD bytes);

  void append(const AccessEntry& entry);
  void append_copy(ACE_HEADER* entry);

  // Null when a step failed. Valid as long as this object.
  [[nodiscard]] ACL* get() { return is_whole_ ? list() : nullptr; }

 private:
  [[nodiscard]] ACL* list() { return reinterpret_cast<ACL*>(bytes_.data()); }

  std::vector<std::byte> bytes_;
  bool is_whole_;
};

}  // namespace quillvane
