#include "view/console/script/script_runner.h"

#include <gtest/gtest.h>

#include "tests/support/small_program.h"

namespace quillvane {
namespace {

TEST(ScriptRunner, RunsTheLinesInTheirOrder) {
  ScriptStage stage;

  EXPECT_EQ(stage.run("# a comment\necho one\n\nstart w2-c2\necho two\n"), "\"one\"\n\"two\"\n");

  EXPECT_EQ(stage.problem, "");
  EXPECT_EQ(stage.program.switches, "w2-c2");
}

struct ErrorCase {
  const char* script;
  const char* problem;
};

TEST(ScriptRunner, AnErrorNamesTheLineAndEndsTheScript) {
  const ErrorCase cases[] = {
      {"echo\n\nnonsense a\nstart\n", "line 3: nonsense: there is no such command"},
      {"echo \"a\n", "line 1: a quoted word has no closing quote"},
      {"click Form7.cmd_go\n", "line 1: Form7: there is no such window"},
      {"start\nclick Form9.cmd_go\n", "line 2: Form9: there is no such window"},
      {"start\nclick Form7.cmd_stop\n", "line 2: Form7.cmd_stop: there is no such control"},
      {"start\nclick cmd_go\n", "line 2: cmd_go: must be the names of a window and a control"},
      {"start\nget Form7.cmd_go.Weight\n",
       "line 2: Form7.cmd_go.Weight: there is no such property"},
      {"start\nget Form7.weight\n", "line 2: Form7.weight: there is no such field"},
      {"start\npick Form7.view1 1\n", "line 2: 1: out of range"},
      {"start\npick Form7.view1 one\n", "line 2: one: must be a number"},
      {"start\nclick\n", "line 2: click: a word is missing"},
      {"start\nclose Form7 now\n", "line 2: close: too many words"},
      {"start\nstart\n", "line 2: start: the windows are made already"},
      {"at pump 0 ended\n", "line 1: 0: out of range"},
      {"at noon 1 ended\n", "line 1: noon: must be pump"},
      {"at pump 1 nonsense\n", "line 1: nonsense: there is no such command"},
      {"when Form7 a ended\n", "line 1: Form7: must be the names of a window and a control"},
      {"answer maybe\n", "line 1: maybe: must be yes, no, ok or cancel"},
  };
  for (const ErrorCase& c : cases) {
    ScriptStage stage;
    stage.run(std::string(c.script) + "setreg HKCU \"Software\\Never\"\n");
    EXPECT_EQ(stage.problem, c.problem) << c.script;
    EXPECT_EQ(stage.run("reg HKCU \"Software\\Never\" \"\"\n"), "null\n") << c.script;
  }
}

TEST(ScriptRunner, WhatWasPrintedBeforeAnErrorStays) {
  ScriptStage stage;
  EXPECT_EQ(stage.run("echo before\nnonsense\necho after\n"), "\"before\"\n");
}

TEST(ScriptRunner, ACommandRunsAtTheNthServingOfTheLoop) {
  ScriptStage stage;

  const std::string out = stage.run(
      "at pump 2 echo second\n"
      "at pump 1 echo first\n"
      "wait 0\n"
      "echo between\n"
      "wait 0\n");

  EXPECT_EQ(out, "\"first\"\n\"between\"\n\"second\"\n");
}

TEST(ScriptRunner, CommandsThatAreDueTogetherKeepTheOrderOfTheScript) {
  ScriptStage stage;

  const std::string out = stage.run(
      "start\n"
      "type Form7.Text1 \"abc\"\n"
      "when Form7.Text1 \"b\" echo one\n"
      "at pump 1 echo two\n"
      "when Form7.Text1 \"c\" echo three\n"
      "wait 0\n");

  EXPECT_EQ(out, "\"one\"\n\"two\"\n\"three\"\n");
}

TEST(ScriptRunner, ACommandWaitsForATextAndThenRunsOnce) {
  ScriptStage stage;

  const std::string out = stage.run(
      "start\n"
      "when Form7.Text1 \"ready\" echo now\n"
      "wait 0\n"
      "echo waited\n"
      "type Form7.Text1 \"is ready.\"\n"
      "echo written\n"
      "wait 0\n"
      "wait 0\n");

  EXPECT_EQ(out, "\"waited\"\n\"written\"\n\"now\"\n");
}

TEST(ScriptRunner, TheTextOfALabelIsItsCaption) {
  ScriptStage stage;
  stage.window.info.set_caption("3 files");
  EXPECT_EQ(stage.run("start\nwhen form7.label1(1) \"files\" echo found\nwait 0\n"), "\"found\"\n");
}

TEST(ScriptRunner, AWindowThatIsNotMadeYetIsWaitedFor) {
  ScriptStage stage;

  const std::string out = stage.run(
      "when Form7.Text1 \"a\" echo found\n"
      "wait 0\n"
      "start\n"
      "type Form7.Text1 \"a\"\n"
      "wait 0\n");

  EXPECT_EQ(out, "\"found\"\n");
}

TEST(ScriptRunner, NamesOfLaterCommandsAreLookedUpWhenTheyRun) {
  ScriptStage stage;

  stage.run("at pump 1 click Form7.cmd_stop\nstart\necho\nwait 0\necho after\n");
  EXPECT_EQ(stage.problem, "line 1: Form7.cmd_stop: there is no such control");

  stage.run("echo\nwhen Form7.Text9 \"a\" ended\nwait 0\n");
  EXPECT_EQ(stage.problem, "line 2: Form7.Text9: there is no such control");

  stage.run("when Form7.Frame1 \"a\" ended\nwait 0\n");
  EXPECT_EQ(stage.problem, "line 1: Form7.Frame1: has no text");
}

TEST(ScriptRunner, ALaterCommandCanServeTheLoopItself) {
  ScriptStage stage;

  const std::string out = stage.run(
      "at pump 1 wait 0\n"
      "at pump 1 echo first\n"
      "at pump 2 echo second\n"
      "wait 0\n");

  // The second serving happens inside the first one's wait.
  EXPECT_EQ(out, "\"second\"\n\"first\"\n");
}

TEST(ScriptRunner, CommandsRunInsideEachOtherOnlySoDeep) {
  const auto nested_waits = [](int count) {
    std::string script;
    for (int i = 1; i <= count; ++i) script += "at pump " + std::to_string(i) + " wait 1\n";
    return script + "wait 1\necho after\n";
  };
  ScriptStage stage;

  EXPECT_EQ(stage.run(nested_waits(99)), "\"after\"\n");

  EXPECT_EQ(stage.run(nested_waits(1'000)), "");
  EXPECT_EQ(stage.problem, "line 100: too many commands run inside each other");
}

TEST(ScriptRunner, ALineThatNeverEndsEndsTheScript) {
  ScriptStage stage;
  EXPECT_EQ(stage.run("echo one\n#" + std::string(kLongestScriptLine, '-') + "\necho two\n"),
            "\"one\"\n");
  EXPECT_EQ(stage.problem, "line 2: is too long");
}

TEST(ScriptRunner, ALaterCommandCanSetAnother) {
  ScriptStage stage;

  const std::string out =
      stage.run("echo\nat pump 1 at pump 2 get Form7.x\nwait 0\nwait 0\nwait 0\n");

  EXPECT_EQ(out, "\"\"\n");
  EXPECT_EQ(stage.problem, "line 2: Form7: there is no such window");
}

TEST(ScriptRunner, WaitingLetsTimersTick) {
  ScriptStage stage;
  int ticks = 0;
  stage.window.tick.on_timer = [&] { ++ticks; };
  stage.window.tick.set_running(true);

  stage.run("wait 1400\n");
  EXPECT_EQ(ticks, 2);  // at 500 and 1000 ms

  stage.run("wait 100\n");
  EXPECT_EQ(ticks, 3);
}

TEST(ScriptRunner, AfterTheEndOfTheProgramOnlyLookingLinesWork) {
  ScriptStage stage;
  stage.window.go.on_click = [&] { stage.program.has_ended = true; };

  const std::string out = stage.run(
      "start\n"
      "ended\n"
      "click Form7.cmd_go\n"
      "type Form7.Text1 \"late\"\n"
      "click Form7.no_such_control\n"
      "at pump 1 echo late\n"
      "wait 0\n"
      "rightclick Form7.view1\n"
      "ended\n"
      "get Form7.Text1.Text\n");

  EXPECT_EQ(stage.problem, "");
  EXPECT_EQ(out, "false\ntrue\n\"\"\n");
}

TEST(ScriptRunner, AWaitingWindowRunsTheLinesThatFollow) {
  ScriptStage stage;
  bool closed = false;
  stage.window.go.on_click = [&] {
    stage.machine.loop().serve_until([&] { return closed; });
    stage.window.input.set_text("went on");
  };
  stage.window.entry.on_click = [&] { closed = true; };

  const std::string out = stage.run(
      "start\n"
      "click Form7.cmd_go\n"
      "get Form7.Text1.Text\n"
      "click Form7.a1\n"
      "get Form7.Text1.Text\n");

  EXPECT_EQ(out, "\"\"\n\"went on\"\n");
}

TEST(ScriptRunner, AWaitingWindowInsideAnotherIsFinishedFirst) {
  ScriptStage stage;
  bool inner_closed = false;
  bool outer_closed = false;
  stage.window.go.on_click = [&] {
    stage.machine.loop().serve_until([&] { return outer_closed; });
    stage.window.input.set_text(stage.window.input.text() + "outer");
  };
  stage.window.info.on_click = [&] {
    stage.machine.loop().serve_until([&] { return inner_closed; });
    stage.window.input.set_text(stage.window.input.text() + "inner ");
  };
  stage.window.entry.on_click = [&] { outer_closed = true; };
  stage.window.hidden_entry.on_click = [&] { inner_closed = true; };

  const std::string out = stage.run(
      "start\n"
      "click Form7.cmd_go\n"
      "click Form7.Label1(1)\n"
      "click Form7.a1\n"
      "echo the inner one waits on\n"
      "click Form7.a2\n"
      "get Form7.Text1.Text\n");

  EXPECT_EQ(out, "\"the inner one waits on\"\n\"inner outer\"\n");
}

TEST(ScriptRunner, TheEndOfTheScriptEndsTheWait) {
  ScriptStage stage;
  int waits_ended = 0;
  stage.window.go.on_click = [&] {
    stage.machine.loop().serve_until([] { return false; });
    ++waits_ended;
  };

  EXPECT_EQ(stage.run("start\nclick Form7.cmd_go\nclick Form7.cmd_go\necho last\n"), "\"last\"\n");

  EXPECT_EQ(waits_ended, 2);
}

TEST(ScriptRunner, AnErrorInsideAWaitingWindowEndsTheWholeScript) {
  ScriptStage stage;
  stage.window.go.on_click = [&] { stage.machine.loop().serve_until([] { return false; }); };

  EXPECT_EQ(stage.run("start\nclick Form7.cmd_go\nnonsense\necho after\n"), "");
  EXPECT_EQ(stage.problem, "line 3: nonsense: there is no such command");
}

TEST(ScriptRunner, StopsWhenNothingMoreCanBePrinted) {
  ScriptStage stage;
  std::istringstream lines("echo one\nsetreg HKCU \"Software\\Never\"\n");
  std::ostringstream out;
  out.setstate(std::ios::badbit);
  ScriptRunner runner(lines, out, stage.machine, stage.program);

  EXPECT_EQ(runner.run(), std::nullopt);

  EXPECT_FALSE(
      stage.machine.platform().registry.values(Hive::kCurrentUser, "Software\\Never").has_value());
}

}  // namespace
}  // namespace quillvane
