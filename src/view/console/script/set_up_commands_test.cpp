#include <gtest/gtest.h>

#include "support/file_date.h"
#include "tests/support/small_program.h"

namespace quillvane {
namespace {

struct ProblemCase {
  const char* line;
  const char* problem;
};

void expect_problems(ScriptStage& stage, const std::vector<ProblemCase>& cases) {
  for (const ProblemCase& c : cases) {
    stage.run(c.line);
    EXPECT_EQ(stage.problem, c.problem) << c.line;
  }
}

TEST(SetUpCommands, ClockSetsTheLocalDateAndTime) {
  ScriptStage stage;

  stage.run("clock \"2024-02-29 23:59:58\"\n");

  EXPECT_EQ(stage.problem, "");
  EXPECT_EQ(
      calendar_date(stage.machine.loop().local_now()),
      (DateTime{.year = 2024, .month = 2, .day = 29, .hour = 23, .minute = 59, .second = 58}));
}

TEST(SetUpCommands, ADateThatIsNoneIsAnError) {
  ScriptStage stage;
  expect_problems(
      stage,
      {{"clock \"2026-11-21\"", "line 1: 2026-11-21: must be written like 2026-11-21 10:00:00"},
       {"clock \"2026-11-21T10:00:00\"",
        "line 1: 2026-11-21T10:00:00: must be written like 2026-11-21 10:00:00"},
       {"clock \"2026-13-21 10:00:00\"", "line 1: 13: out of range"},
       {"clock \"2026-11-21 24:00:00\"", "line 1: 24: out of range"},
       {"clock \"2023-02-29 10:00:00\"", "line 1: 2023-02-29 10:00:00: there is no such day"}});
}

TEST(SetUpCommands, ChangeTheLoadedMachine) {
  ScriptStage stage;

  stage.run(
      "env TEMP \"D:\\Temp\"\n"
      "process 4120 \"chrome.exe\"\n"
      "inuse \"C:\\a.tmp\"\n"
      "denied \"C:\\secret\"\n"
      "urlcache \"http://example.com/a\" \"C:\\cache\\a.htm\"\n"
      "window \"Tidewrack\"\n");

  EXPECT_EQ(stage.problem, "");
  EXPECT_EQ(stage.machine.platform().environment.get("temp"), "D:\\Temp");
  const MachineState& state = stage.machine.temp().machine().state();
  ASSERT_EQ(state.processes.size(), 1U);
  EXPECT_EQ(state.processes[0].id, 4120U);
  EXPECT_EQ(state.processes[0].name, "chrome.exe");
  EXPECT_EQ(state.in_use, std::vector<std::string>{"C:\\a.tmp"});
  EXPECT_EQ(state.denied, std::vector<std::string>{"C:\\secret"});
  ASSERT_EQ(state.url_cache.size(), 1U);
  EXPECT_EQ(state.url_cache[0].url, "http://example.com/a");
  EXPECT_EQ(state.url_cache[0].file, "C:\\cache\\a.htm");
  EXPECT_EQ(state.windows, std::vector<std::string>{"Tidewrack"});
}

TEST(SetUpCommands, WhatAMachineCannotDoEndsTheScript) {
  ScriptStage stage;
  expect_problems(stage, {{"window \"\"", "line 1: a window needs a title"},
                          {"process x \"a.exe\"", "line 1: x: must be a number"},
                          {"process -1 \"a.exe\"", "line 1: -1: out of range"}});
}

TEST(SetUpCommands, SetregMakesKeysAndValues) {
  ScriptStage stage;

  stage.run(
      "setreg HKCU \"Software\\A\\B\"\n"
      "setreg HKCU \"Software\\A\" \"list\" multi \"x\" \"\"\n"
      "setreg HKCU \"Software\\A\" \"\" dword 7\n");

  EXPECT_EQ(stage.problem, "");
  const Registry& registry = stage.machine.platform().registry;
  EXPECT_TRUE(registry.values(Hive::kCurrentUser, "Software\\A\\B"));
  EXPECT_EQ(registry.value(Hive::kCurrentUser, "Software\\A", "list"),
            (RegistryValue{RegistryType::kMultiSz, std::string("x\0\0\0", 4)}));
  EXPECT_EQ(registry.value(Hive::kCurrentUser, "Software\\A", ""),
            (RegistryValue{RegistryType::kDword, std::string("\x07\0\0\0", 4)}));
}

TEST(SetUpCommands, SetregIsNoEffectOfTheProgram) {
  ScriptStage stage;
  stage.machine.effects().add("empty-recycle-bin");

  const std::string out = stage.run(
      "setreg HKLM \"SYSTEM\\CurrentControlSet\\Control\\Session Manager\" "
      "PendingFileRenameOperations multi \"\\??\\C:\\a\" \"\"\n"
      "events\n");

  EXPECT_EQ(out, "[{\"event\":\"empty-recycle-bin\"}]\n");
}

TEST(SetUpCommands, SetregWithHalfAValueIsAnError) {
  ScriptStage stage;
  expect_problems(stage,
                  {{"setreg HKCU \"Software\\A\" \"name\"",
                    "line 1: setreg: a type is missing behind the name"},
                   {"setreg HKXX \"Software\"", "line 1: HKXX: must be HKLM, HKCU, HKCR or HKU"},
                   {"setreg HKCU \"Software\\A\" \"name\" sz", "line 1: sz: takes one value"}});
}

TEST(SetUpCommands, AttribSetsAndClearsSingleAttributes) {
  ScriptStage stage;
  stage.machine.temp().add_file("C:\\a.tmp", 1);
  FileSystem& files = stage.machine.platform().files;

  stage.run("attrib \"C:\\a.tmp\" +r +h -a\n");
  EXPECT_EQ(stage.problem, "");
  EXPECT_EQ(files.attributes("C:\\a.tmp"), kAttributeReadOnly | kAttributeHidden);

  stage.run("attrib \"C:\\a.tmp\" -r +s\n");
  EXPECT_EQ(files.attributes("C:\\a.tmp"), kAttributeHidden | kAttributeSystem);

  stage.run("attrib \"C:\\a.tmp\" -h -s\n");
  EXPECT_EQ(files.attributes("C:\\a.tmp"), kAttributeNormal);
}

TEST(SetUpCommands, AttribNeedsAFileAndALetter) {
  ScriptStage stage;
  stage.machine.temp().add_file("C:\\a.tmp", 1);
  expect_problems(
      stage, {{"attrib \"C:\\b.tmp\" +r", "line 1: C:\\b.tmp: there is no such file or folder"},
              {"attrib \"C:\\a.tmp\" +x", "line 1: +x: must be + or - and one of r, h, s, a"},
              {"attrib \"C:\\a.tmp\" r", "line 1: r: must be + or - and one of r, h, s, a"},
              {"attrib \"C:\\a.tmp\"", "line 1: attrib: a word is missing"}});
}

}  // namespace
}  // namespace quillvane
