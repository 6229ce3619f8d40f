#include "scan/registry_keys.h"

#include <gtest/gtest.h>

#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

const std::string kKey = "Software\\Browsers";

struct TwoKeys : ScanFixture {
  TwoKeys() {
    machine.add_registry_key(Hive::kCurrentUser, kKey + "\\second\\below");
    machine.add_registry_key(Hive::kCurrentUser, kKey + "\\First");
    start();
  }
  Form7& form() { return program->main_window(); }
  std::string names;
};

TEST(FEnumKey, AddsTheNamesOfTheSubKeysToTheWorkingList) {
  TwoKeys fixture;
  EXPECT_EQ(fEnumKey(fixture.form(), "HKCU", kKey, fixture.names), 0);
  EXPECT_EQ(fixture.form().List1.items(), (Texts{"First", "second"}));
}

TEST(FEnumKey, AppendsTheNamesToTheCallersText) {
  TwoKeys fixture;
  fixture.names = "before;";
  EXPECT_EQ(fEnumKey(fixture.form(), "HKCU", kKey, fixture.names), 0);
  EXPECT_EQ(fixture.names, "before;Firstsecond");
}

TEST(FEnumKey, LeavesTheListForItsCallerToClear) {
  TwoKeys fixture;
  fixture.form().List1.add("before");
  EXPECT_EQ(fEnumKey(fixture.form(), "hkcu", kKey, fixture.names), 0);
  EXPECT_EQ(fixture.form().List1.items(), (Texts{"before", "First", "second"}));
}

TEST(FEnumKey, ServesTheMessageLoopOncePerName) {
  TwoKeys fixture;
  int served = 0;
  fixture.machine.loop().set_served_hook([&] { ++served; });
  EXPECT_EQ(fEnumKey(fixture.form(), "HKCU", kKey, fixture.names), 0);
  EXPECT_EQ(served, 2);
}

TEST(FEnumKey, TellsThatTheKeyWasNotRead) {
  TwoKeys fixture;
  EXPECT_NE(fEnumKey(fixture.form(), "HKCU", "Software\\Missing", fixture.names), 0);
  EXPECT_NE(fEnumKey(fixture.form(), "HKLM", kKey, fixture.names), 0);
  EXPECT_NE(fEnumKey(fixture.form(), "HKXX", kKey, fixture.names), 0);
  EXPECT_EQ(fixture.form().List1.items(), Texts{});
  EXPECT_EQ(fixture.names, "");
}

}  // namespace
}  // namespace quillvane
