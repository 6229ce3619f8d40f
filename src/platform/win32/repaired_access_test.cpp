#include "platform/win32/repaired_access.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>
#include <vector>

#include "platform/win32/account_sid.h"
#include "tests/windows/shown_access.h"

namespace quillvane {
namespace {

// A SID of the test's own: S-1-5-21-<number>.
class TestSid {
 public:
  explicit TestSid(DWORD number) {
    SID_IDENTIFIER_AUTHORITY authority{SECURITY_NT_AUTHORITY};
    InitializeSid(bytes_, &authority, 2);
    *GetSidSubAuthority(bytes_, 0) = 21;
    *GetSidSubAuthority(bytes_, 1) = number;
  }
  [[nodiscard]] PSID get() { return bytes_; }

 private:
  alignas(SID) std::uint8_t bytes_[SECURITY_MAX_SID_SIZE]{};
};

class RepairedAccess : public testing::Test {
 protected:
  static constexpr BYTE kAllow = ACCESS_ALLOWED_ACE_TYPE;
  static constexpr BYTE kDeny = ACCESS_DENIED_ACE_TYPE;

  // The entries of a list of its own, as Windows hands one out.
  OldAccessList old_list(const std::vector<AccessEntry>& entries) {
    DWORD bytes = sizeof(ACL);
    for (const AccessEntry& entry : entries) bytes += entry_bytes(entry.sid);
    old_ = AccessList(bytes);
    for (const AccessEntry& entry : entries) old_.append(entry);
    const auto read = read_access_list(old_.get());
    EXPECT_TRUE(read.has_value());
    return read.value_or(OldAccessList());
  }

  TestSid user_{1000};
  TestSid other_{1001};
  OwnedSid world_ = world_sid();

 private:
  AccessList old_{sizeof(ACL)};
};

TEST_F(RepairedAccess, AKeyGetsDenialsFirstAndNewRightsBehindItsOwn) {
  const OldAccessList old = old_list({{kAllow, 0, 0x20019, other_.get()}});
  const AccessEntry entries[] = {
      {kAllow, 2, 0x10000000, world_.get()},
      {kAllow, 0, 0xE0010000, user_.get()},
      {kDeny, 10, 0x10000000, user_.get()},
  };
  AccessList list = key_access_list(old, entries);
  EXPECT_EQ(shown_entries(list.get()),
            (ShownEntries{"deny 10 0x10000000 S-1-5-21-1000", "allow 0 0x00020019 S-1-5-21-1001",
                          "allow 2 0x10000000 S-1-1-0", "allow 0 0xE0010000 S-1-5-21-1000"}));
}

TEST_F(RepairedAccess, AKeysEarlierEntriesOfTheSameAccountsAreDropped) {
  const OldAccessList old = old_list({{kDeny, 0, 0x2, user_.get()},
                                      {kDeny, 0, 0x4, other_.get()},
                                      {kAllow, 0, 0x1, world_.get()},
                                      {kAllow, 0, 0x20019, other_.get()}});
  const AccessEntry entries[] = {
      {kAllow, 2, 0x10000000, world_.get()},
      {kAllow, 0, 0xE0010000, user_.get()},
  };
  AccessList list = key_access_list(old, entries);
  EXPECT_EQ(shown_entries(list.get()),
            (ShownEntries{"deny 0 0x00000004 S-1-5-21-1001", "allow 0 0x00020019 S-1-5-21-1001",
                          "allow 2 0x10000000 S-1-1-0", "allow 0 0xE0010000 S-1-5-21-1000"}));
}

TEST_F(RepairedAccess, WhatAKeyInheritedStaysAtTheEndWhomeverItConcerns) {
  const OldAccessList old = old_list({{kAllow, 0, 0x1, other_.get()},
                                      {kAllow, 18, 0x2, user_.get()},
                                      {kAllow, 16, 0x3, other_.get()},
                                      {kAllow, 0, 0x4, world_.get()}});
  const AccessEntry entries[] = {
      {kAllow, 2, 0x10000000, world_.get()},
      {kAllow, 0, 0xE0010000, user_.get()},
  };
  AccessList list = key_access_list(old, entries);
  EXPECT_EQ(shown_entries(list.get()),
            (ShownEntries{"allow 0 0x00000001 S-1-5-21-1001", "allow 2 0x10000000 S-1-1-0",
                          "allow 0 0xE0010000 S-1-5-21-1000", "allow 18 0x00000002 S-1-5-21-1000",
                          "allow 16 0x00000003 S-1-5-21-1001", "allow 0 0x00000004 S-1-1-0"}));
}

TEST_F(RepairedAccess, AKeyWithAnEmptyListGetsTheNewEntriesAlone) {
  const AccessEntry entries[] = {{kAllow, 0, 0x1, user_.get()}};
  AccessList list = key_access_list(old_list({}), entries);
  EXPECT_EQ(shown_entries(list.get()), ShownEntries{"allow 0 0x00000001 S-1-5-21-1000"});
}

TEST_F(RepairedAccess, AFileGetsOneEntryBehindTheOthers) {
  const OldAccessList old = old_list({{kAllow, 0, 0x1, user_.get()},
                                      {kAllow, 16, 0x2, other_.get()},
                                      {kDeny, 0, 0x4, user_.get()},
                                      {kAllow, 16, 0x8, user_.get()}});
  AccessList list = file_access_list(old, user_.get(), 0x10000000, ObjectKind::kFile);
  EXPECT_EQ(shown_entries(list.get()), (ShownEntries{"allow 16 0x00000002 S-1-5-21-1001",
                                                     "allow 0 0x10000000 S-1-5-21-1000"}));
}

TEST_F(RepairedAccess, AFolderGetsOneEntryForItsFilesAndOneForFolders) {
  const OldAccessList old = old_list({{kAllow, 3, 0x2, other_.get()}});
  AccessList list = file_access_list(old, user_.get(), 0x10000000, ObjectKind::kFolder);
  EXPECT_EQ(shown_entries(list.get()),
            (ShownEntries{"allow 3 0x00000002 S-1-5-21-1001", "allow 9 0x10000000 S-1-5-21-1000",
                          "allow 2 0x10000000 S-1-5-21-1000"}));
}

TEST_F(RepairedAccess, ASecondRunChangesNothingMore) {
  const OldAccessList old = old_list({{kAllow, 3, 0x2, other_.get()}});
  AccessList first = file_access_list(old, user_.get(), 0x10000000, ObjectKind::kFolder);
  const auto once = read_access_list(first.get());
  ASSERT_TRUE(once.has_value());
  AccessList second = file_access_list(*once, user_.get(), 0x10000000, ObjectKind::kFolder);
  EXPECT_EQ(shown_entries(second.get()), shown_entries(first.get()));
}

TEST_F(RepairedAccess, AnEntryOfAnotherKindIsAboutNobody) {
  // Entries of objects (type 5) hold other things where those of this kind hold their account.
  const OldAccessList old = old_list({{/*type=*/5, 0, 0x1, user_.get()}});
  ASSERT_EQ(old.entries.size(), 1U);
  EXPECT_FALSE(concerns(old.entries[0], user_.get()));
}

TEST(AccessList, AListThatLacksAnEntryIsNotHandedOut) {
  TestSid user(1000);
  AccessList list(sizeof(ACL) + entry_bytes(user.get()));
  EXPECT_NE(list.get(), nullptr);
  list.append({ACCESS_ALLOWED_ACE_TYPE, 0, 0x1, user.get()});
  EXPECT_NE(list.get(), nullptr);
  list.append({ACCESS_ALLOWED_ACE_TYPE, 0, 0x2, user.get()});
  EXPECT_EQ(list.get(), nullptr);
}

TEST(AccessList, AListLargerThanWindowsTakesIsNotHandedOut) {
  EXPECT_EQ(AccessList(70'000).get(), nullptr);
}

TEST(AccountSid, EverybodyIsTheWellKnownGroup) {
  const OwnedSid world = world_sid();
  ASSERT_NE(world, nullptr);
  EXPECT_EQ(shown_sid(world.get()), "S-1-1-0");
}

TEST(AccountSid, AnUnknownAccountHasNone) {
  EXPECT_EQ(account_sid("no such account on this PC"), nullptr);
}

}  // namespace
}  // namespace quillvane
