#include "platform/win32/account_sid.h"

#include "platform/win32/wide_text.h"

namespace quillvane {

namespace {

// Two sources, two ways to give back.
OwnedSid allocated(PSID sid) {
  return {sid, [](PSID own) { FreeSid(own); }};
}
OwnedSid local(PSID sid) {
  return {sid, [](PSID own) { LocalFree(own); }};
}

}  // namespace

OwnedSid world_sid() {
  SID_IDENTIFIER_AUTHORITY world{SECURITY_WORLD_SID_AUTHORITY};
  PSID sid = nullptr;
  const BOOL made =
      AllocateAndInitializeSid(&world, 1, SECURITY_WORLD_RID, 0, 0, 0, 0, 0, 0, 0, &sid);
  return allocated(made ? sid : nullptr);
}

OwnedSid account_sid(const std::string& account) {
  const std::wstring name = widen(account);
  DWORD sid_bytes = 0;
  DWORD domain_units = 0;
  SID_NAME_USE use{};
  LookupAccountNameW(nullptr, name.c_str(), nullptr, &sid_bytes, nullptr, &domain_units, &use);
  if (sid_bytes == 0) return local(nullptr);
  OwnedSid sid = local(LocalAlloc(LMEM_FIXED, sid_bytes));
  std::wstring domain(domain_units, L'\0');
  if (sid == nullptr || !LookupAccountNameW(nullptr, name.c_str(), sid.get(), &sid_bytes,
                                            domain.data(), &domain_units, &use)) {
    return local(nullptr);
  }
  return sid;
}

}  // namespace quillvane
