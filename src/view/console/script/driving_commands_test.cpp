#include <gtest/gtest.h>

#include "tests/support/small_program.h"

namespace quillvane {
namespace {

std::string started(ScriptStage& stage, const std::string& script) {
  return stage.run("start\n" + script);
}

void add_rows(ScriptStage& stage, int count) {
  for (int i = 0; i < count; ++i) stage.window.list.add("row");
}

void add_nodes(ScriptStage& stage) {
  stage.window.tree.add("", "w", "Windows", 1);
  stage.window.tree.add("w", "st", "System Temporary", 1);
}

TEST(DrivingCommands, ClickRunsTheClickEvent) {
  ScriptStage stage;
  std::vector<std::string> clicked;
  stage.window.go.on_click = [&] { clicked.push_back("button"); };
  stage.window.info.on_click = [&] { clicked.push_back("label"); };
  stage.window.first.on_click = [&] { clicked.push_back("option"); };
  stage.window.entry.on_click = [&] { clicked.push_back("entry"); };

  started(stage,
          "click Form7.cmd_go\nclick FORM7.LABEL1(1)\nclick form7.Option1\nclick Form7.a1\n");

  EXPECT_EQ(stage.problem, "");
  EXPECT_EQ(clicked, (std::vector<std::string>{"button", "label", "option", "entry"}));
}

TEST(DrivingCommands, ActsOnADisabledControlDoNothing) {
  ScriptStage stage;
  add_rows(stage, 1);
  int acts = 0;
  stage.window.go.on_click = stage.window.agree.on_click = [&] { ++acts; };
  stage.window.list.on_item_click = stage.window.list.on_item_check = [&](int) { ++acts; };
  stage.window.go.set_enabled(false);
  stage.window.agree.set_enabled(false);
  stage.window.list.set_enabled(false);

  started(stage,
          "click Form7.cmd_go\ntick Form7.Check1 on\n"
          "pick Form7.view1 1\ntick Form7.view1 1 on\n");

  EXPECT_EQ(stage.problem, "");
  EXPECT_EQ(acts, 0);
  EXPECT_FALSE(stage.window.agree.checked());
  EXPECT_FALSE(stage.window.list.checked(1));
}

TEST(DrivingCommands, HiddenControlsCanBeUsed) {
  ScriptStage stage;
  int clicks = 0;
  stage.window.go.on_click = [&] { ++clicks; };
  stage.window.go.hide();

  started(stage, "click Form7.cmd_go\n");

  EXPECT_EQ(clicks, 1);
}

TEST(DrivingCommands, ClickWithANumberPressesAToolBarButton) {
  ScriptStage stage;
  std::vector<int> pressed;
  stage.window.bar.on_button_click = [&](int number) { pressed.push_back(number); };
  stage.window.bar.set_buttons({{1, false, true, true}, {2, false, false, true}});

  started(stage, "click Form7.Toolbar1 1\nclick Form7.Toolbar1 2\n");
  EXPECT_EQ(stage.problem, "");
  EXPECT_EQ(pressed, std::vector<int>{1});

  stage.run("click Form7.Toolbar1 3\n");
  EXPECT_EQ(stage.problem, "line 1: 3: out of range");
  stage.run("click Form7.Toolbar1\n");
  EXPECT_EQ(stage.problem, "line 1: Form7.Toolbar1: cannot be clicked");
  stage.run("click Form7.cmd_go 1\n");
  EXPECT_EQ(stage.problem, "line 1: Form7.cmd_go: has no numbered buttons");
}

TEST(DrivingCommands, TypingChangesTheTextOnlyWhenItDiffers) {
  ScriptStage stage;
  int changes = 0;
  stage.window.input.on_change = [&] { ++changes; };

  started(stage, "type Form7.Text1 \"1\"\ntype Form7.Text1 \"1\"\ntype Form7.Text1 \"\"\n");

  EXPECT_EQ(changes, 2);
  EXPECT_EQ(stage.window.input.text(), "");
}

TEST(DrivingCommands, TickSetsACheckBoxWithItsEvent) {
  ScriptStage stage;
  int clicks = 0;
  stage.window.agree.on_click = [&] { ++clicks; };

  started(stage, "tick Form7.Check1 on\ntick Form7.Check1 on\n");

  EXPECT_TRUE(stage.window.agree.checked());
  EXPECT_EQ(clicks, 1);
}

TEST(DrivingCommands, TickAndPickReachRowsAndNodes) {
  ScriptStage stage;
  add_rows(stage, 2);
  add_nodes(stage);
  std::vector<std::string> acts;
  const auto note = [&](const std::string& what) {
    return [&acts, what](int number) { acts.push_back(what + std::to_string(number)); };
  };
  stage.window.list.on_item_check = note("row ticked ");
  stage.window.tree.on_node_check = note("node ticked ");
  stage.window.list.on_item_click = note("row picked ");
  stage.window.tree.on_node_click = note("node picked ");

  started(stage,
          "tick Form7.view1 2 on\ntick Form7.Tv1 2 on\ntick Form7.Tv1 2 off\n"
          "pick Form7.view1 1\npick Form7.Tv1 1\n");

  EXPECT_EQ(acts, (std::vector<std::string>{"row ticked 2", "node ticked 2", "node ticked 2",
                                            "row picked 1", "node picked 1"}));
  EXPECT_TRUE(stage.window.list.checked(2));
  EXPECT_FALSE(stage.window.tree.node(2).checked);
  EXPECT_TRUE(stage.window.list.selected(1));
}

TEST(DrivingCommands, MarkSelectsWithoutAClick) {
  ScriptStage stage;
  add_rows(stage, 2);
  int clicks = 0;
  stage.window.list.on_item_click = [&](int) { ++clicks; };

  started(stage, "mark Form7.view1 1 on\nmark Form7.view1 2 on\nmark Form7.view1 1 off\n");

  EXPECT_FALSE(stage.window.list.selected(1));
  EXPECT_TRUE(stage.window.list.selected(2));
  EXPECT_EQ(clicks, 0);
}

TEST(DrivingCommands, OpenDoubleClicksWithoutAClickBefore) {
  ScriptStage stage;
  add_rows(stage, 1);
  std::vector<std::string> acts;
  stage.window.list.on_item_click = [&](int) { acts.push_back("click"); };
  stage.window.list.on_double_click = [&] { acts.push_back("double click"); };

  started(stage, "open Form7.view1 1\nopen Form7.view1\n");

  EXPECT_EQ(acts, (std::vector<std::string>{"double click", "double click"}));
}

TEST(DrivingCommands, ColumnClicksAHeader) {
  ScriptStage stage;
  std::vector<int> columns;
  stage.window.list.on_column_click = [&](int column) { columns.push_back(column); };

  started(stage, "column Form7.view1 2\n");
  EXPECT_EQ(columns, std::vector<int>{2});

  stage.run("column Form7.view1 3\n");
  EXPECT_EQ(stage.problem, "line 1: 3: out of range");
}

TEST(DrivingCommands, RightClickPrintsTheEntriesOfThePopUp) {
  ScriptStage stage;
  stage.window.tree.on_right_click = [&] { return &stage.window.menu; };
  stage.window.list.on_right_click = [] { return nullptr; };

  EXPECT_EQ(started(stage, "rightclick Form7.Tv1\nrightclick Form7.view1\n"),
            "[\"a1\",\"a2\"]\nnull\n");

  stage.window.hidden_entry.hide();
  EXPECT_EQ(stage.run("rightclick Form7.Tv1\n"), "[\"a1\"]\n");
}

TEST(DrivingCommands, WindowsHaveTheirOwnButtons) {
  ScriptStage stage;

  started(stage, "minimise Form7\n");
  EXPECT_EQ(stage.window.state(), WindowState::kMinimised);
  stage.run("restore Form7\n");
  EXPECT_EQ(stage.window.state(), WindowState::kNormal);
  stage.run("close Form7\n");
  EXPECT_TRUE(stage.window.closed);
}

TEST(DrivingCommands, TheEndOfTheScriptClosesNothing) {
  ScriptStage stage;
  started(stage, "");
  EXPECT_FALSE(stage.window.closed);
}

TEST(DrivingCommands, AnswersAreGivenInTheirOrder) {
  ScriptStage stage;
  std::vector<Answer> given;
  stage.window.go.on_click = [&] {
    given.push_back(stage.machine.dialogs().message_box("Sure?", "Please Confirm", kBoxYesNo));
  };

  started(stage,
          "answer yes\nanswer cancel\n"
          "click Form7.cmd_go\nclick Form7.cmd_go\nclick Form7.cmd_go\n");

  EXPECT_EQ(given, (std::vector<Answer>{Answer::kYes, Answer::kCancel, Answer::kNo}));
}

TEST(DrivingCommands, AnswersToOtherDialogsAreTakenBeforeTheStart) {
  ScriptStage stage;
  stage.run("path \"C:\\Backup\"\npath \"\"\ninput \"a name\"\n");
  EXPECT_EQ(stage.problem, "");
}

}  // namespace
}  // namespace quillvane
