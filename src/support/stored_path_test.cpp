#include "support/stored_path.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/folder/machine_environment.h"

namespace quillvane {
namespace {

// A machine whose 64-bit programs are on another drive, so that a test sees which folder was taken.
MachineState machine_state() {
  MachineState state;
  state.environment = default_environment();
  set_variable(state.environment, "ProgramFiles", "C:\\Program Files (x86)");
  set_variable(state.environment, "ProgramW6432", "D:\\Programs");
  set_variable(state.environment, "CommonProgramFiles", "C:\\Shared (x86)");
  return state;
}

struct Case {
  std::string_view stored;
  std::string_view opened;
};

constexpr Case kOn32Bit[] = {
    {"", ""},
    {"C:\\Dumps\\MEMORY.DMP", "C:\\Dumps\\MEMORY.DMP"},
    {"%SystemRoot%\\MEMORY.DMP", "C:\\Windows\\MEMORY.DMP"},
    {"%systemroot%\\System32\\X.DMP", "C:\\Windows\\System32\\X.DMP"},
    {"%ProgramFiles%\\App", "C:\\Program Files (x86)\\App"},
    {"C:\\Program Files\\App", "C:\\Program Files\\App"},
    {"%NoSuchName%\\App", "%NoSuchName%\\App"},
};

TEST(GetPath, ExpandsReferencesAndKeepsTheCaseOn32Bit) {
  const MachineState state = machine_state();
  const MachineEnvironment environment(state);
  for (const auto& [stored, opened] : kOn32Bit) {
    std::string path(stored);
    EXPECT_EQ(GetPath(environment, false, path), opened) << stored;
    EXPECT_EQ(path, stored);
  }
}

constexpr Case kOn64Bit[] = {
    {"", ""},
    {"C:\\Dumps\\MEMORY.DMP", "c:\\dumps\\memory.dmp"},
    // What the expansion brings in keeps its case.
    {"%SystemRoot%\\MEMORY.DMP", "C:\\Windows\\memory.dmp"},
    {"%NoSuchName%\\App", "%nosuchname%\\app"},
    // Past the redirection, at every occurrence.
    {"%SystemRoot%\\System32\\X.DMP", "C:\\Windows\\sysnative\\x.dmp"},
    {"C:\\SYSTEM32\\system32", "c:\\sysnative\\sysnative"},
    // To the 64-bit programs.
    {"%ProgramFiles%\\App", "D:\\Programs\\app"},
    {"C:\\Program Files\\App\\a.dmp", "D:\\Programs\\app\\a.dmp"},
    {"%CommonProgramFiles%\\App", "D:\\Programs\\Common Files\\app"},
    // 32-bit programs stay where they are; a path that names them keeps its other reference too.
    {"C:\\Program Files (x86)\\App", "c:\\program files (x86)\\app"},
    {"%ProgramFiles%\\Program Files (x86)", "C:\\Program Files (x86)\\program files (x86)"},
    // Only the system's drive is meant, and only the folder itself.
    {"E:\\Program Files\\App", "e:\\program files\\app"},
    {"C:\\Program Files", "c:\\program files"},
};

TEST(GetPath, LeadsTo64BitFoldersInLowerCaseOn64Bit) {
  const MachineState state = machine_state();
  const MachineEnvironment environment(state);
  for (const auto& [stored, opened] : kOn64Bit) {
    std::string path(stored);
    EXPECT_EQ(GetPath(environment, true, path), opened) << stored;
  }
}

TEST(GetPath, ChangesItsArgumentOn64BitToTheTextThatIsExpanded) {
  const MachineState state = machine_state();
  const MachineEnvironment environment(state);
  std::string path = "%SystemRoot%\\System32\\X.DMP";
  EXPECT_EQ(GetPath(environment, true, path), "C:\\Windows\\sysnative\\x.dmp");
  EXPECT_EQ(path, "%systemroot%\\sysnative\\x.dmp");
}

TEST(GetPath, TakesTheSystemsDriveFromTheWindowsFolder) {
  MachineState state = machine_state();
  set_variable(state.environment, "WinDir", "E:\\Windows");
  const MachineEnvironment environment(state);
  std::string of_system = "E:\\Program Files\\App";
  EXPECT_EQ(GetPath(environment, true, of_system), "D:\\Programs\\app");
  std::string of_other_drive = "C:\\Program Files\\App";
  EXPECT_EQ(GetPath(environment, true, of_other_drive), "c:\\program files\\app");
}

TEST(GetTempDir, EndsInABackslash) {
  MachineState state = machine_state();
  set_variable(state.environment, "TMP", "D:\\Tmp");
  EXPECT_EQ(GetTempDir(MachineEnvironment(state)), "D:\\Tmp\\");

  set_variable(state.environment, "TMP", "D:\\Tmp\\");
  EXPECT_EQ(GetTempDir(MachineEnvironment(state)), "D:\\Tmp\\");
}

TEST(GetTempDir, IsEmptyWhenNoneIsSet) {
  const MachineState state;
  EXPECT_EQ(GetTempDir(MachineEnvironment(state)), "");
}

}  // namespace
}  // namespace quillvane
