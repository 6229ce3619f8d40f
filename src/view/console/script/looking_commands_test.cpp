#include <gtest/gtest.h>

#include "tests/support/small_program.h"

namespace quillvane {
namespace {

std::string started(ScriptStage& stage, const std::string& script) {
  return stage.run("start\n" + script);
}

TEST(LookingCommands, GetPrintsEachPropertyInItsType) {
  ScriptStage stage;
  stage.window.input.set_text("C:\\Temp \"x\"");
  stage.window.info.set_caption("Label \xFF");
  stage.window.info.set_fore_color(192);
  stage.window.info.set_back_color(10118205);
  stage.window.agree.set_checked(true);
  stage.window.plain.add("one");
  stage.window.go.set_enabled(false);
  stage.window.page.hide();

  const std::string out = started(stage,
                                  "get Form7.Text1.Text\n"
                                  "get Form7.Label1(1).Caption\n"
                                  "get Form7.Label1(1).Text\n"
                                  "get Form7.Label1(1).ForeColor\n"
                                  "get Form7.Label1(1).BackColor\n"
                                  "get Form7.Check1.Value\n"
                                  "get Form7.Option1.Value\n"
                                  "get Form7.List1.Count\n"
                                  "get Form7.cmd_go.Enabled\n"
                                  "get Form7.Frame1.Visible\n"
                                  "get form7.timer1.interval\n"
                                  "get Form7.Timer1.Enabled\n"
                                  "get Form7.a1.Caption\n");

  EXPECT_EQ(out,
            "\"C:\\\\Temp \\\"x\\\"\"\n"
            "\"Label \xEF\xBF\xBD\"\n"
            "\"Label \xEF\xBF\xBD\"\n"
            "192\n"
            "10118205\n"
            "1\n"
            "false\n"
            "1\n"
            "false\n"
            "false\n"
            "500\n"
            "false\n"
            "\"Add\"\n");
}

TEST(LookingCommands, GetPrintsFieldsOfAWindow) {
  ScriptStage stage;
  stage.window.files = 12;
  EXPECT_EQ(started(stage, "get Form7.files\nget FORM7.FILES\n"), "12\n12\n");

  stage.window.files = 0.5;
  EXPECT_EQ(stage.run("get Form7.files\n"), "0.5\n");
}

TEST(LookingCommands, AWindowIsVisibleOnceItIsShown) {
  ScriptStage stage;
  stage.window.set_caption("Cleaner");
  stage.window.set_back_color(255);

  EXPECT_EQ(stage.run("get Form7.Visible\nstart\nget Form7.Visible\n"), "false\ntrue\n");
  EXPECT_EQ(stage.run("get Form7.Caption\nget Form7.BackColor\n"), "\"Cleaner\"\n255\n");

  stage.run("get Form9.Visible\n");
  EXPECT_EQ(stage.problem, "line 1: Form9: there is no such window");
}

TEST(LookingCommands, GetPrintsTheStateOfToolBarButtons) {
  ScriptStage stage;
  stage.window.bar.set_buttons({{1, false, true, false}, {2, false, false, true}});

  EXPECT_EQ(started(stage,
                    "get Form7.Toolbar1.Enabled 1\nget Form7.Toolbar1.Visible 1\n"
                    "get Form7.Toolbar1.Enabled 2\nget Form7.Toolbar1.visible 2\n"),
            "true\nfalse\nfalse\ntrue\n");

  stage.run("get Form7.Toolbar1.Enabled 3\n");
  EXPECT_EQ(stage.problem, "line 1: 3: out of range");
  stage.run("get Form7.Toolbar1.Caption 1\n");
  EXPECT_EQ(stage.problem, "line 1: Form7.Toolbar1.Caption: there is no such property of a button");
  stage.run("get Form7.cmd_go.Enabled 1\n");
  EXPECT_EQ(stage.problem, "line 1: Form7.cmd_go: has no numbered buttons");
}

TEST(LookingCommands, GetPrintsTheCaptionOfAColumn) {
  ScriptStage stage;

  EXPECT_EQ(started(stage,
                    "get Form7.view1.ColumnHeaders(1).Text\n"
                    "get form7.VIEW1.columnheaders(2).text\n"),
            "\"File Name\"\n\"Size\"\n");

  stage.run("get Form7.view1.ColumnHeaders(3).Text\n");
  EXPECT_EQ(stage.problem, "line 1: 3: out of range");
  stage.run("get Form7.view1.ColumnHeaders(1).Width\n");
  EXPECT_EQ(stage.problem, "line 1: Form7.view1.ColumnHeaders(1).Width: there is no such property");
}

TEST(LookingCommands, RowsShowTheHiddenColumnsToo) {
  ScriptStage stage;
  ListView& list = stage.window.list;
  list.add("C:\\a.tmp");
  list.set_sub_item(1, 1, "3 KB");
  list.set_sub_item(1, 2, "2");
  list.set_icon(1, "1");
  list.set_checked(1, true);
  list.add("C:\\b.tmp");
  list.set_selected(2, true);

  EXPECT_EQ(started(stage, "rows Form7.view1\n"),
            R"([{"text":"C:\\a.tmp","sub":["3 KB","2"],"checked":true,"selected":false,)"
            R"("icon":"1","bold":false,"color":0},)"
            R"({"text":"C:\\b.tmp","sub":[],"checked":false,"selected":true,)"
            R"("icon":null,"bold":false,"color":0}])"
            "\n");
}

TEST(LookingCommands, RowsOfAPlainListHaveTextAlone) {
  ScriptStage stage;
  stage.window.plain.add("C:");

  EXPECT_EQ(started(stage, "rows Form7.List1\n"),
            R"([{"text":"C:","sub":[],"checked":false,"selected":false,)"
            R"("icon":null,"bold":false,"color":0}])"
            "\n");
}

TEST(LookingCommands, AnEmptyListIsAnEmptyArray) {
  ScriptStage stage;
  EXPECT_EQ(started(stage, "rows Form7.view1\nnodes Form7.Tv1\nboxes\nevents\n"),
            "[]\n[]\n[]\n[]\n");
}

TEST(LookingCommands, NodesShowWhatTheTreeHolds) {
  ScriptStage stage;
  TreeView& tree = stage.window.tree;
  tree.add("", "w", "Windows", 1);
  tree.set_bold(1, true);
  tree.set_expanded(1, true);
  tree.add("w", "st", "System Temporary", 2);
  tree.set_checked(2, true);
  tree.set_node_color(2, 192);

  EXPECT_EQ(started(stage, "nodes Form7.Tv1\n"),
            R"([{"index":1,"key":"w","parent":"","text":"Windows","image":1,"checked":false,)"
            R"("bold":true,"expanded":true,"color":0},)"
            R"({"index":2,"key":"st","parent":"w","text":"System Temporary","image":2,)"
            R"("checked":true,"bold":false,"expanded":false,"color":192}])"
            "\n");
}

TEST(LookingCommands, BoxesAreShownOnceAndAreEffectsToo) {
  ScriptStage stage;
  stage.window.go.on_click = [&] {
    stage.machine.dialogs().message_box("Are you sure", "Please Confirm", kBoxYesNo);
    stage.machine.dialogs().message_box("Done", "Cleaner", kBoxIconInformation);
  };

  const std::string out =
      started(stage, "answer yes\nclick Form7.cmd_go\nboxes\nboxes\nevents\nevents\n");

  EXPECT_EQ(out, R"([{"kind":"question","text":"Are you sure","title":"Please Confirm","style":4,)"
                 R"("answer":"yes"},)"
                 R"({"kind":"message","text":"Done","title":"Cleaner","style":64,"answer":"ok"}])"
                 "\n[]\n"
                 R"([{"event":"box","text":"Are you sure"},{"event":"box","text":"Done"}])"
                 "\n[]\n");
}

TEST(LookingCommands, EffectsShowTheirParticularsInTheirOrder) {
  ScriptStage stage;
  stage.machine.effects().add("shell-open",
                              {{"verb", "open"}, {"path", "C:\\x"}, {"show", std::int64_t{1}}});
  stage.machine.effects().add("queue-write",
                              {{"value", std::vector<std::string>{"\\??\\C:\\a", ""}}});

  EXPECT_EQ(stage.run("events\n"),
            R"([{"event":"shell-open","verb":"open","path":"C:\\x","show":1},)"
            R"({"event":"queue-write","value":["\\??\\C:\\a",""]}])"
            "\n");
}

TEST(LookingCommands, RegPrintsAValueOrNull) {
  ScriptStage stage;

  EXPECT_EQ(stage.run("setreg HKLM \"Software\\Test\" \"Name\" sz \"a text\"\n"
                      "reg HKLM \"software\\test\" \"NAME\"\n"
                      "reg HKLM \"software\\test\" \"other\"\n"
                      "reg HKLM \"software\\none\" \"\"\n"),
            "{\"type\":\"sz\",\"value\":\"a text\"}\nnull\nnull\n");
}

TEST(LookingCommands, ExistsLooksWithTheEyesOfTheMachine) {
  ScriptStage stage;
  stage.machine.temp().add_file("C:\\Windows\\Temp\\a.tmp", 1);

  EXPECT_EQ(stage.run("exists \"c:\\windows\\TEMP\\A.TMP\"\nexists C:\\Windows\\Temp\n"
                      "exists C:\\Windows\\b.tmp\n"),
            "true\ntrue\nfalse\n");
}

TEST(LookingCommands, EchoPartsTheOutput) {
  ScriptStage stage;
  EXPECT_EQ(stage.run("echo\necho one  two\necho \"a  b\" c\n"), "\"\"\n\"one two\"\n\"a  b c\"\n");
}

}  // namespace
}  // namespace quillvane
