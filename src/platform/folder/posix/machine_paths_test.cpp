#include "platform/folder/posix/machine_paths.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/drive_test.h"

namespace quillvane {

namespace {

class MachinePathsTest : public DriveTest {
 protected:
  MachinePathsTest() {
    host.write("drive_c/Windows/System32/a.dll", "of 64 bits");
    host.write("drive_c/Windows/SysWOW64/a.dll", "of 32 bits");
  }

  // Where a path leads below its drive.
  [[nodiscard]] std::string find(const std::string& path) const {
    const auto place = MachinePaths(machine).find(path);
    return place ? place->path : "(nothing)";
  }
};

}  // namespace

TEST_F(MachinePathsTest, LeadToTheFolderOfTheDrive) {
  host.write("drive_d/only here.txt");
  EXPECT_EQ(find("D:\\ONLY HERE.TXT"), "only here.txt");
  EXPECT_EQ(find("C:\\only here.txt"), "(nothing)");
  EXPECT_EQ(find("E:\\only here.txt"), "(nothing)");
  EXPECT_EQ(find("C:\\"), "");
  EXPECT_EQ(find("E:\\"), "(nothing)");
  EXPECT_EQ(find("only here.txt"), "(nothing)");
}

TEST_F(MachinePathsTest, StayOnTheDriveWithDots) {
  EXPECT_EQ(find("C:\\..\\..\\Windows\\.\\System32\\.."), "Windows");
  EXPECT_EQ(find("C:/windows/SYSTEM32"), "Windows/System32");
}

TEST_F(MachinePathsTest, LeadSysnativeToSystem32OnAWideMachine) {
  EXPECT_EQ(find("C:\\Windows\\Sysnative\\a.dll"), "(nothing)");
  machine.is_64_bit = true;
  EXPECT_EQ(find("C:\\Windows\\Sysnative\\a.dll"), "Windows/System32/a.dll");
  EXPECT_EQ(find("c:\\WINDOWS\\sysNATIVE"), "Windows/System32");
  EXPECT_EQ(find("C:\\Windows\\System32\\a.dll"), "Windows/System32/a.dll");
  EXPECT_EQ(find("C:\\Sysnative"), "(nothing)");
  EXPECT_EQ(find("C:\\Windows\\Sysnative2"), "(nothing)");
}

TEST_F(MachinePathsTest, LeadSysnativeByTheEnvironment) {
  host.make_folder("drive_d/WinNT/System32");
  machine.is_64_bit = true;
  machine.environment = {{"TEMP", "C:\\Temp"}, {"WINDIR", "D:\\WinNT\\"}};
  EXPECT_EQ(find("D:\\WinNT\\Sysnative"), "WinNT/System32");
  EXPECT_EQ(find("C:\\Windows\\Sysnative"), "(nothing)");
  machine.environment.clear();
  EXPECT_EQ(find("D:\\WinNT\\Sysnative"), "(nothing)");
}

TEST_F(MachinePathsTest, EndAt260Characters) {
  const std::string name(100, 'n');
  const std::string folder = "drive_c/" + name + "/" + name;
  // "C:\" and twice the name with a backslash make 205.
  const std::string path = "C:\\" + name + "\\" + name + "\\";
  host.write(folder + "/" + std::string(54, 'f'));
  host.write(folder + "/" + std::string(55, 'f'));
  EXPECT_NE(find(path + std::string(54, 'f')), "(nothing)");
  EXPECT_EQ(find(path + std::string(55, 'f')), "(nothing)");
}

TEST_F(MachinePathsTest, CountCharactersAsWindowsDoes) {
  // 85 letters of two bytes are 85 units, 40 of four bytes are 80.
  std::string two_bytes;
  for (int i = 0; i < 85; ++i) two_bytes += "\xC3\xA4";
  std::string four_bytes;
  for (int i = 0; i < 40; ++i) four_bytes += "\xF0\x9F\x98\x80";
  const std::string path = "C:\\" + two_bytes + "\\" + two_bytes + "\\" + four_bytes;
  host.write("drive_c/" + two_bytes + "/" + two_bytes + "/" + four_bytes + "abcd");
  host.write("drive_c/" + two_bytes + "/" + two_bytes + "/" + four_bytes + "abcde");
  EXPECT_NE(find(path + "abcd"), "(nothing)");  // 3 + 86 + 86 + 84 = 259
  EXPECT_EQ(find(path + "abcde"), "(nothing)");
}

TEST_F(MachinePathsTest, KnowAFileInUseByWhateverPath) {
  host.write("drive_c/Temp/a.tmp");
  host.write("drive_c/Temp/b.tmp");
  host.make_link("drive_c/link", "Temp");
  machine.in_use = {"C:\\link\\A.TMP", "C:\\missing.tmp"};
  const MachinePaths paths(machine);
  EXPECT_TRUE(paths.is_in_use(HostIdentity::of(paths.find("C:\\Temp\\a.tmp")->status)));
  EXPECT_FALSE(paths.is_in_use(HostIdentity::of(paths.find("C:\\Temp\\b.tmp")->status)));
}

TEST_F(MachinePathsTest, KnowTheDeniedFoldersThatAreThere) {
  machine.denied = {"C:\\WINDOWS\\system32\\", "C:\\missing"};
  const MachinePaths paths(machine);
  const auto denied = paths.denied();
  ASSERT_EQ(denied.size(), 1U);
  EXPECT_EQ(denied[0], HostIdentity::of(paths.find("C:\\Windows\\System32")->status));
}

}  // namespace quillvane
