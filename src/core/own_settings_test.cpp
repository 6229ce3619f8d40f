// The program reads its settings from the half of the registry into which it writes them: on 64-bit
// Windows that is the 32-bit half for the 32-bit program.
#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "cleaning/statistics.h"
#include "tests/support/registry_halves.h"
#include "tests/support/scan_fixture.h"

namespace quillvane {
namespace {

const std::string kProgramKey = "software\\Quillvane\\Tidewrack Deluxe\\";
const std::string kSuiteKey = "SOFTWARE\\Quillvane\\Tidewrack";

// The program on such a Windows, with C: and D:.
struct HalvedRegistry {
  // The same value in both halves, with different texts.
  void put(const std::string& key, const std::string& name, const std::string& narrow,
           const std::string& wide) {
    registry.narrow.put(Hive::kLocalMachine, key, name, RegistryType::kSz, narrow);
    registry.wide.put(Hive::kLocalMachine, key, name, RegistryType::kSz, wide);
  }
  [[nodiscard]] std::string narrow(const std::string& key, const std::string& name) const {
    const auto value = registry.narrow.value(Hive::kLocalMachine, key, name);
    return value ? value->data : "(absent)";
  }
  [[nodiscard]] std::string wide(const std::string& key, const std::string& name) const {
    const auto value = registry.wide.value(Hive::kLocalMachine, key, name);
    return value ? value->data : "(absent)";
  }
  Form7& start() {
    program.emplace(fixture.machine.platform().with({.registry = &registry}));
    program->start("");
    return program->main_window();
  }

  ScanFixture fixture{R"({"drives": [{"letter": "C"}, {"letter": "D"}]})"};
  RegistryHalves registry;
  std::optional<Program> program;
};

TEST(OwnSettings, StatisticsAddUpInOneHalf) {
  HalvedRegistry machine;
  const std::string key = kProgramKey + "statics\\junkfiles";
  machine.put(key, "count", "5", "700");
  machine.put(key, "size", "10", "900");

  EXPECT_TRUE(add_to_statistics(machine.registry, "3", "20"));

  EXPECT_EQ(machine.narrow(key, "count"), "8");
  EXPECT_EQ(machine.narrow(key, "size"), "30");
  EXPECT_EQ(machine.wide(key, "count"), "700");
  EXPECT_EQ(machine.wide(key, "size"), "900");
}

TEST(OwnSettings, BackupsAreNumberedInOneHalf) {
  HalvedRegistry machine;
  const std::string key = kProgramKey + "junkscan";
  machine.put(key, "cnt", "2", "40");
  Form7& form = machine.start();

  form.Command14.click();

  EXPECT_EQ(machine.narrow(key, "cnt"), "3");
  EXPECT_EQ(machine.narrow(key + "\\dates", "3"), "21_11_2026_10.00.00");
  EXPECT_EQ(machine.wide(key, "cnt"), "40");
}

TEST(OwnSettings, TickedDrivesComeBackFromOneHalf) {
  HalvedRegistry machine;
  const std::string key = kProgramKey + "timer";
  machine.put(key, "alldrive", "1", "1");
  machine.put(key, "drive1", "Local Disk (D:)", "Local Disk (C:)");
  EXPECT_EQ(ticked(machine.start().View2), std::vector{2});
}

TEST(OwnSettings, TheSuitesColourIsOfOneHalf) {
  HalvedRegistry machine;
  machine.put(kSuiteKey, "color", "255", "65280");
  EXPECT_EQ(machine.start().back_color(), 255);
}

TEST(OwnSettings, TheOptionOfTheTemporaryFolderIsOfOneHalf) {
  HalvedRegistry machine;
  machine.put(kProgramKey + "option\\systemp", "access", "narrow", "wide");
  EXPECT_EQ(machine.start().systempaccess, "narrow");
}

}  // namespace
}  // namespace quillvane
