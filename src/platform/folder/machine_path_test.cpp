#include "platform/folder/machine_path.h"

#include <gtest/gtest.h>

namespace quillvane {
namespace {

class MachinePath : public testing::Test {
 protected:
  MachinePath() {
    machine.drives = {{'C', DriveType::kFixed, "/machine/drive_c", {}, {}},
                      {'D', DriveType::kFixed, "/other", {}, {}}};
    machine.environment = {{"WINDIR", "C:\\Windows\\"}};
  }

  // Drive and names, parted by blanks.
  [[nodiscard]] std::string parsed(const std::string& text) const {
    const auto path = parse_machine_path(machine, text);
    if (!path) return "(nothing)";
    std::string all(1, path->drive);
    for (const std::string& name : path->names) all += " " + name;
    return all;
  }

  MachineState machine;
};

TEST_F(MachinePath, IsDriveAndNames) {
  EXPECT_EQ(parsed("c:\\Temp\\a.tmp"), "C Temp a.tmp");
  EXPECT_EQ(parsed("C:\\..\\Windows\\.\\System32\\.."), "C Windows");
  EXPECT_EQ(parsed("Temp\\a.tmp"), "(nothing)");
}

TEST_F(MachinePath, LeadsFromSysnativeToSystem32OnAWideMachineAlone) {
  EXPECT_EQ(parsed("C:\\windows\\sysNATIVE\\a.dll"), "C windows sysNATIVE a.dll");
  machine.is_64_bit = true;
  EXPECT_EQ(parsed("C:\\windows\\sysNATIVE\\a.dll"), "C windows System32 a.dll");
  EXPECT_EQ(parsed("C:\\Sysnative\\a.dll"), "C Sysnative a.dll");
  EXPECT_EQ(parsed("D:\\Windows\\Sysnative"), "D Windows Sysnative");
  machine.environment.clear();
  EXPECT_EQ(parsed("C:\\Windows\\Sysnative"), "C Windows Sysnative");
}

TEST_F(MachinePath, EndsAt260Units) {
  EXPECT_EQ(parsed("C:\\" + std::string(256, 'n')), "C " + std::string(256, 'n'));
  EXPECT_EQ(parsed("C:\\" + std::string(257, 'n')), "(nothing)");
  // A letter of four bytes is two units.
  std::string letters;
  for (int i = 0; i < 128; ++i) letters += "\xF0\x9F\x98\x80";
  EXPECT_EQ(parsed("C:\\" + letters), "C " + letters);
  EXPECT_EQ(parsed("C:\\" + letters + "a"), "(nothing)");
}

TEST_F(MachinePath, TheFolderOfADriveIsThatOfItsLetter) {
  EXPECT_EQ(drive_host_folder(machine, 'D'), "/other");
  EXPECT_EQ(drive_host_folder(machine, 'E'), "");
}

}  // namespace
}  // namespace quillvane
