// Rights on keys and files, read back from Windows.
#include <gtest/gtest.h>
#include <windows.h>

#include <sddl.h>

#include <cstddef>
#include <cstring>
#include <string>
#include <vector>

#include "platform/win32/account_sid.h"
#include "platform/win32/registry_key.h"
#include "platform/win32/wide_text.h"
#include "platform/win32/win32_environment.h"
#include "platform/win32/win32_security.h"
#include "tests/windows/scratch_folder.h"
#include "tests/windows/shown_access.h"
#include "tests/windows/wine.h"

namespace quillvane {
namespace {

constexpr DWORD kList = DACL_SECURITY_INFORMATION;

std::string user_account() { return Win32Environment().get("UserName"); }
std::string user_sid() { return shown_sid(account_sid(user_account()).get()); }

// A descriptor written as text, in which "USER" stands for the user's account.
std::vector<std::byte> descriptor(std::string text) {
  const std::string user = user_sid();
  for (std::size_t at; (at = text.find("USER")) != std::string::npos;) text.replace(at, 4, user);
  PSECURITY_DESCRIPTOR made = nullptr;
  ULONG size = 0;
  EXPECT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorA(text.c_str(), SDDL_REVISION_1,
                                                                   &made, &size))
      << text;
  const auto* bytes = static_cast<const std::byte*>(made);
  std::vector<std::byte> copy(bytes, bytes + size);
  LocalFree(made);
  return copy;
}

ACL* list_in(std::vector<std::byte>& bytes) {
  BOOL is_present = FALSE;
  BOOL is_defaulted = FALSE;
  ACL* list = nullptr;
  EXPECT_TRUE(GetSecurityDescriptorDacl(bytes.data(), &is_present, &list, &is_defaulted));
  return list;
}

class KeyAccess : public testing::Test {
 protected:
  KeyAccess() {
    EXPECT_TRUE(RegistryKey::create(Hive::kCurrentUser, key_, KEY_ALL_ACCESS).is_open());
  }
  ~KeyAccess() override { RegDeleteTreeW(HKEY_CURRENT_USER, widen(key_).c_str()); }

  void set(std::vector<std::byte> bytes) {
    const RegistryKey key = RegistryKey::open(Hive::kCurrentUser, key_, WRITE_DAC);
    EXPECT_EQ(RegSetKeySecurity(key.get(), kList, bytes.data()), ERROR_SUCCESS);
  }
  [[nodiscard]] std::vector<std::byte> get() const {
    const RegistryKey key = RegistryKey::open(Hive::kCurrentUser, key_, READ_CONTROL);
    std::vector<std::byte> bytes(4096);
    auto size = static_cast<DWORD>(bytes.size());
    EXPECT_EQ(RegGetKeySecurity(key.get(), kList, bytes.data(), &size), ERROR_SUCCESS);
    return bytes;
  }
  [[nodiscard]] ShownEntries entries() const {
    std::vector<std::byte> bytes = get();
    return shown_entries(list_in(bytes), {KEY_READ, KEY_WRITE, KEY_EXECUTE, KEY_ALL_ACCESS});
  }
  [[nodiscard]] SECURITY_DESCRIPTOR_CONTROL control() const {
    std::vector<std::byte> bytes = get();
    SECURITY_DESCRIPTOR_CONTROL bits = 0;
    DWORD revision = 0;
    EXPECT_TRUE(GetSecurityDescriptorControl(bytes.data(), &bits, &revision));
    return bits;
  }
  void run() { security_.set_key_access(Hive::kCurrentUser, key_, user_account()); }

  const std::string key_ =
      "Software\\QuillvaneSecurityTest" + std::to_string(GetCurrentProcessId());
  Win32Security security_;
};

TEST_F(KeyAccess, EverybodyAndTheUserHoldTheirEntriesInWindowsOrder) {
  set(descriptor("D:(A;;KR;;;BU)(A;;KA;;;USER)(A;;KR;;;WD)(A;CIID;KA;;;USER)(A;CIID;KA;;;SY)"));
  run();
  // To read, write and execute a key (0x2001F), and to delete it (0x10000).
  EXPECT_EQ(entries(),
            (ShownEntries{"deny 10 0x10000000 " + user_sid(), "allow 0 0x00020019 S-1-5-32-545",
                          "allow 2 0x000F003F S-1-1-0", "allow 0 0x0003001F " + user_sid(),
                          "allow 18 0x000F003F " + user_sid(), "allow 18 0x000F003F S-1-5-18"}));
}

TEST_F(KeyAccess, ASecondRunDoesNotPileUp) {
  set(descriptor("D:(A;;KR;;;BU)(A;;KA;;;USER)"));
  run();
  const ShownEntries once = entries();
  EXPECT_EQ(once.size(), 4U);
  run();
  EXPECT_EQ(entries(), once);
}

TEST_F(KeyAccess, TheKeyCanBeWrittenAfterwards) {
  set(descriptor("D:(A;;KA;;;USER)"));
  run();
  EXPECT_TRUE(RegistryKey::open(Hive::kCurrentUser, key_, KEY_SET_VALUE).is_open());
}

TEST_F(KeyAccess, AListThatIsProtectedFromInheritanceStaysSo) {
  set(descriptor("D:P(A;;KA;;;USER)"));
  run();
  EXPECT_EQ(entries().size(), 3U);
  EXPECT_EQ(control() & (SE_DACL_PROTECTED | SE_DACL_AUTO_INHERITED), SE_DACL_PROTECTED);
}

TEST_F(KeyAccess, AListThatInheritsByItselfStaysSo) {
  set(descriptor("D:AI(A;;KA;;;USER)"));
  run();
  EXPECT_EQ(entries().size(), 3U);
  EXPECT_EQ(control() & (SE_DACL_PROTECTED | SE_DACL_AUTO_INHERITED), SE_DACL_AUTO_INHERITED);
}

TEST_F(KeyAccess, AnUnknownAccountLeavesTheKey) {
  set(descriptor("D:(A;;KR;;;BU)(A;;KA;;;USER)"));
  const ShownEntries before = entries();
  security_.set_key_access(Hive::kCurrentUser, key_, "no such account on this PC");
  EXPECT_EQ(entries(), before);
}

// Without a list everybody may do everything already.
TEST_F(KeyAccess, AKeyWithoutAListOfRightsStaysWithoutOne) {
  SECURITY_DESCRIPTOR absolute;
  ASSERT_TRUE(InitializeSecurityDescriptor(&absolute, SECURITY_DESCRIPTOR_REVISION));
  ASSERT_TRUE(SetSecurityDescriptorDacl(&absolute, TRUE, nullptr, FALSE));
  std::vector<std::byte> bytes(sizeof(absolute));
  std::memcpy(bytes.data(), &absolute, sizeof(absolute));
  set(bytes);
  std::vector<std::byte> before = get();
  ASSERT_EQ(list_in(before), nullptr);
  run();
  std::vector<std::byte> after = get();
  EXPECT_EQ(list_in(after), nullptr);
}

TEST_F(KeyAccess, AMissingKeyIsNotMade) {
  const std::string missing = key_ + "\\missing";
  security_.set_key_access(Hive::kCurrentUser, missing, user_account());
  EXPECT_FALSE(RegistryKey::open(Hive::kCurrentUser, missing, KEY_QUERY_VALUE).is_open());
}

class FileAccess : public testing::Test {
 protected:
  static void set(const std::string& path, std::vector<std::byte> bytes) {
    EXPECT_TRUE(SetFileSecurityW(widen(path).c_str(), kList, bytes.data())) << path;
  }
  [[nodiscard]] static ShownEntries entries(const std::string& path) {
    std::vector<std::byte> bytes(4096);
    auto size = static_cast<DWORD>(bytes.size());
    EXPECT_TRUE(GetFileSecurityW(widen(path).c_str(), kList, bytes.data(), size, &size)) << path;
    return shown_entries(list_in(bytes), {FILE_GENERIC_READ, FILE_GENERIC_WRITE,
                                          FILE_GENERIC_EXECUTE, FILE_ALL_ACCESS});
  }
  // Those about the user.
  [[nodiscard]] static ShownEntries user_entries(const std::string& path) {
    ShownEntries shown = entries(path);
    std::erase_if(shown, [user = user_sid()](const std::string& entry) {
      return !entry.ends_with(" " + user);
    });
    return shown;
  }
  void run(const std::string& path) {
    security_.set_file_access(user_account(), path, kGenericAll);
  }

  ScratchFolder folder_;
  Win32Security security_;
};

// Wine keeps the rights on a file as the host does, by owner, group and others, and tells them by
// entries of its own making. What they are exactly is seen on Windows alone, and in the tests of
// the lists that are handed to it.
TEST_F(FileAccess, AFileGivesTheUserAllRights) {
  const std::string path = folder_.add_file("a.txt", "x");
  set(path, descriptor("D:(A;;FR;;;SY)(A;;FR;;;USER)"));
  ASSERT_NE(user_entries(path), ShownEntries{"allow 0 0x001F01FF " + user_sid()});
  run(path);
  EXPECT_EQ(user_entries(path), ShownEntries{"allow 0 0x001F01FF " + user_sid()});
  run(path);
  EXPECT_EQ(user_entries(path), ShownEntries{"allow 0 0x001F01FF " + user_sid()});
}

TEST_F(FileAccess, AFolderGivesTheUserRightsForFilesAndForFolders) {
  const std::string user = user_sid();
  const ShownEntries expected =
      is_wine() ? ShownEntries{"allow 3 0x001F01FF " + user}
                : ShownEntries{"allow 9 0x10000000 " + user, "allow 2 0x001F01FF " + user};
  set(folder_.path(), descriptor("D:(A;OICI;FA;;;SY)(A;OICI;FR;;;USER)"));
  ASSERT_NE(user_entries(folder_.path()), expected);
  run(folder_.path());
  EXPECT_EQ(user_entries(folder_.path()), expected);
  run(folder_.path());
  EXPECT_EQ(user_entries(folder_.path()), expected);
}

TEST_F(FileAccess, AnUnknownAccountLeavesTheFile) {
  const std::string path = folder_.add_file("a.txt", "x");
  const ShownEntries before = entries(path);
  security_.set_file_access("no such account on this PC", path, kGenericAll);
  EXPECT_EQ(entries(path), before);
}

}  // namespace
}  // namespace quillvane
