#include "platform/win32/win32_security.h"

#include <windows.h>

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/win32/account_sid.h"
#include "platform/win32/registry_key.h"
#include "platform/win32/repaired_access.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_path.h"

namespace quillvane {

namespace {

// All rights on the key itself, in the 64-bit half of the registry, and the right to change who has
// which.
constexpr REGSAM kKeyRights = KEY_QUERY_VALUE | KEY_SET_VALUE | KEY_CREATE_SUB_KEY |
                              KEY_ENUMERATE_SUB_KEYS | KEY_NOTIFY | KEY_CREATE_LINK |
                              KEY_WOW64_64KEY | READ_CONTROL | WRITE_DAC;
static_assert(kKeyRights == 393535);

constexpr ACCESS_MASK kUserRights = GENERIC_READ | GENERIC_WRITE | GENERIC_EXECUTE | DELETE;

// A security descriptor as Windows hands it out; empty when it doesn't.
using DescriptorBytes = std::vector<std::byte>;

DescriptorBytes security_of(HKEY key) {
  DWORD size = 0;
  RegGetKeySecurity(key, DACL_SECURITY_INFORMATION, nullptr, &size);
  DescriptorBytes bytes(size);
  if (RegGetKeySecurity(key, DACL_SECURITY_INFORMATION, bytes.data(), &size) != ERROR_SUCCESS) {
    return {};
  }
  return bytes;
}

DescriptorBytes security_of(const std::wstring& path) {
  DWORD size = 0;
  GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &size);
  DescriptorBytes bytes(size);
  if (!GetFileSecurityW(path.c_str(), DACL_SECURITY_INFORMATION, bytes.data(), size, &size)) {
    return {};
  }
  return bytes;
}

// Nothing when the descriptor has no list, which means that everybody may do everything.
std::optional<OldAccessList> list_of(DescriptorBytes& descriptor) {
  BOOL is_present = FALSE;
  BOOL is_defaulted = FALSE;
  ACL* list = nullptr;
  if (descriptor.empty() ||
      !GetSecurityDescriptorDacl(descriptor.data(), &is_present, &list, &is_defaulted) ||
      !is_present || list == nullptr) {
    return std::nullopt;
  }
  return read_access_list(list);
}

// What the old descriptor says about inheritance goes on: that it is automatic, and that the list
// is protected from it.
SECURITY_DESCRIPTOR_CONTROL kept_control(DescriptorBytes& old) {
  SECURITY_DESCRIPTOR_CONTROL control = 0;
  DWORD revision = 0;
  if (!GetSecurityDescriptorControl(old.data(), &control, &revision)) return 0;
  SECURITY_DESCRIPTOR_CONTROL kept = 0;
  if ((control & SE_DACL_AUTO_INHERITED) != 0) {
    kept |= SE_DACL_AUTO_INHERIT_REQ | SE_DACL_AUTO_INHERITED;
  }
  kept |= control & SE_DACL_PROTECTED;
  return kept;
}

// A descriptor with nothing but this list, which must outlive it; nothing when there is no list.
std::optional<SECURITY_DESCRIPTOR> descriptor_with(ACL* list, SECURITY_DESCRIPTOR_CONTROL control) {
  SECURITY_DESCRIPTOR descriptor;
  if (list == nullptr || !InitializeSecurityDescriptor(&descriptor, SECURITY_DESCRIPTOR_REVISION) ||
      !SetSecurityDescriptorControl(&descriptor, control, control) ||
      !SetSecurityDescriptorDacl(&descriptor, TRUE, list, FALSE)) {
    return std::nullopt;
  }
  return descriptor;
}

}  // namespace

void Win32Security::set_key_access(Hive hive, const std::string& key, const std::string& account) {
  const RegistryKey opened = RegistryKey::open(hive, key, kKeyRights);
  if (!opened.is_open()) return;
  DescriptorBytes old = security_of(opened.get());
  const auto old_list = list_of(old);
  const OwnedSid world = world_sid();
  const OwnedSid user = account_sid(account);
  if (!old_list || world == nullptr || user == nullptr) return;

  // The user's denial is for what is made below the key, not for the key.
  const AccessEntry entries[] = {
      {ACCESS_ALLOWED_ACE_TYPE, CONTAINER_INHERIT_ACE, GENERIC_ALL, world.get()},
      {ACCESS_ALLOWED_ACE_TYPE, 0, kUserRights, user.get()},
      {ACCESS_DENIED_ACE_TYPE, CONTAINER_INHERIT_ACE | INHERIT_ONLY_ACE, GENERIC_ALL, user.get()},
  };
  AccessList list = key_access_list(*old_list, entries);
  auto descriptor = descriptor_with(list.get(), kept_control(old));
  if (descriptor) RegSetKeySecurity(opened.get(), DACL_SECURITY_INFORMATION, &*descriptor);
}

void Win32Security::set_file_access(const std::string& account, const std::string& path,
                                    std::uint32_t mask) {
  const auto wide = openable_path(path);
  const OwnedSid user = account_sid(account);
  if (!wide || user == nullptr) return;
  DescriptorBytes old = security_of(*wide);
  const auto old_list = list_of(old);
  const DWORD attributes = GetFileAttributesW(wide->c_str());
  if (!old_list || attributes == INVALID_FILE_ATTRIBUTES) return;

  const bool is_folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  AccessList list = file_access_list(*old_list, user.get(), mask,
                                     is_folder ? ObjectKind::kFolder : ObjectKind::kFile);
  auto descriptor = descriptor_with(list.get(), /*control=*/0);
  if (descriptor) SetFileSecurityW(wide->c_str(), DACL_SECURITY_INFORMATION, &*descriptor);
}

}  // namespace quillvane
