// shortcuts: what it finds, what it removes, and how it tells it.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <functional>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/one_machine_host.h"
#include "view/console/console.h"
#include "view/console/json_text.h"

namespace quillvane {
namespace {

const std::string kMenu = "C:\\Users\\User\\AppData\\Roaming\\Microsoft\\Windows\\Start Menu";

// A start menu with a link of each verdict, and a machine with two drives.
struct Stage {
  Stage() {
    machine().set_registry_text(
        Hive::kCurrentUser, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders",
        "Start Menu", kMenu);
    machine().add_folder("C:\\Program Files\\Tidewrack");
    machine().add_file("C:\\there.exe");
    link(kMenu + "\\Away.lnk", "E:\\away.exe");
    link(kMenu + "\\Gone.lnk", "C:\\gone.exe");
    link(kMenu + "\\There.lnk", "C:\\there.exe");
    machine().add_text_file(kMenu + "\\Torn.lnk", "no link");
    link("C:\\Elsewhere\\Lost.lnk", "C:\\lost.exe");
  }

  TempMachine& machine() { return host.machine.temp(); }
  void link(const std::string& path, const std::string& target) {
    machine().add_folder(path.substr(0, path.rfind('\\')));
    EXPECT_TRUE(machine().platform().links.write_link(path, {.target = target})) << path;
  }
  bool has(const std::string& path) { return machine().has_file(path); }

  int run(const std::vector<std::string>& words) {
    ConsoleIo io{in, out, err};
    io.in_is_terminal = terminal;
    return run_console(words, io, host);
  }
  Json document() { return Json::parse(out.str()); }

  OneMachineHost host;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  bool terminal = false;
};

TEST(ShortcutsCommand, CountsTheVerdictsAndNamesTheBrokenLinks) {
  Stage stage;
  EXPECT_EQ(stage.run({"shortcuts"}), 0);
  EXPECT_EQ(stage.out.str(),
            "present           1\n"
            "missing           1\n"
            "unreachable       1\n"
            "not a file        1\n"
            "Total             4\n"
            "\n"
            "unreachable  " +
                kMenu +
                "\\Away.lnk => E:\\away.exe\n"
                "missing      " +
                kMenu +
                "\\Gone.lnk => C:\\gone.exe\n"
                "\n"
                "Broken Shortcut Files Found: 2\n");
  EXPECT_EQ(stage.err.str(), "");
}

TEST(ShortcutsCommand, AsJsonTellsWhatWasLookedUp) {
  Stage stage;
  EXPECT_EQ(stage.run({"shortcuts", "--json", "--list"}), 0);
  const Json document = stage.document();
  EXPECT_EQ(json_text(document["totals"]), R"j({"links":4,"broken":2})j");
  EXPECT_EQ(document["summary"], "Broken Shortcut Files Found: 2");
  ASSERT_EQ(document["links"].size(), 4U);
  const Json away = {
      {"name", "Away"},           {"target", "E:\\away.exe"}, {"path", kMenu + "\\Away.lnk"},
      {"verdict", "unreachable"}, {"lookedUp", "E:\\"},       {"broken", true}};
  EXPECT_EQ(document["links"][0], away);
  EXPECT_EQ(document["links"][2]["verdict"], "present");
  EXPECT_EQ(document["links"][3]["verdict"], "not a file");
  EXPECT_EQ(document["links"][3]["broken"], false);
}

TEST(ShortcutsCommand, SearchesTheDrivesThatAreNamed) {
  for (const char* word : {"C:", "c", "C:\\"}) {
    Stage stage;
    EXPECT_EQ(stage.run({"shortcuts", "--json", "--drive", word}), 0) << word;
    EXPECT_EQ(stage.document()["totals"]["broken"], 3);
  }
}

TEST(ShortcutsCommand, RefusesADriveThatIsNotThere) {
  Stage stage;
  EXPECT_EQ(stage.run({"shortcuts", "--drive", "Q:"}), 1);
  EXPECT_EQ(stage.out.str(), "");
  EXPECT_EQ(stage.err.str(), "quillvane: --drive Q:: is no fixed drive of this machine\n");
}

TEST(ShortcutsCommand, TakesNoNoticeOfTheOptionsThatAreStored) {
  Stage stage;
  const std::string key = "software\\Quillvane\\Tidewrack Deluxe\\short";
  stage.machine().set_registry_text(Hive::kLocalMachine, key, "c1", "1");
  stage.machine().set_registry_text(Hive::kLocalMachine, key, "o5", "1");
  stage.machine().set_registry_text(Hive::kLocalMachine, key, "1", "1");
  EXPECT_EQ(stage.run({"shortcuts", "--json"}), 0);
  EXPECT_EQ(stage.document()["totals"]["broken"], 2);
}

TEST(ShortcutsRemoveCommand, TakesTheMissingOnesAlone) {
  Stage stage;
  EXPECT_EQ(stage.run({"shortcuts", "remove", "--yes", "--json"}), 0);
  EXPECT_FALSE(stage.has(kMenu + "\\Gone.lnk"));
  EXPECT_TRUE(stage.has(kMenu + "\\Away.lnk"));
  EXPECT_TRUE(stage.has(kMenu + "\\There.lnk"));
  EXPECT_TRUE(stage.has(kMenu + "\\Torn.lnk"));
  EXPECT_TRUE(
      stage.has("C:\\Program Files\\Tidewrack\\backup\\short\\21_11_2026_10.00.00\\Gone.lnk2"));
  EXPECT_EQ(json_text(stage.document()["cleaned"]), R"j({"removed":1,"queued":0,"failed":0})j");
  EXPECT_EQ(stage.document()["outcome"], "done");
}

TEST(ShortcutsRemoveCommand, TakesTheUnreachableOnesWhenToldTo) {
  Stage stage;
  EXPECT_EQ(stage.run({"shortcuts", "remove", "--unreachable", "--yes"}), 0);
  EXPECT_FALSE(stage.has(kMenu + "\\Gone.lnk"));
  EXPECT_FALSE(stage.has(kMenu + "\\Away.lnk"));
  EXPECT_TRUE(stage.out.str().ends_with("Removed: 2, queued for the next restart: 0, failed: 0\n"));
}

TEST(ShortcutsRemoveCommand, ANoRemovesNothingAndIsNoProblem) {
  for (const bool terminal : {false, true}) {
    Stage stage;
    stage.terminal = terminal;
    stage.in.str("n\n");
    EXPECT_EQ(stage.run({"shortcuts", "remove", "--json"}), 0);
    EXPECT_TRUE(stage.has(kMenu + "\\Gone.lnk"));
    EXPECT_EQ(stage.document()["outcome"], "declined");
    EXPECT_EQ(stage.err.str().find("Are you sure you want to remove selected Shortcut(s) ?") !=
                  std::string::npos,
              terminal);
  }
}

TEST(ShortcutsRemoveCommand, AsksNothingWhereNothingIsMissing) {
  Stage stage;
  EXPECT_EQ(stage.machine().platform().files.remove_file(kMenu + "\\Gone.lnk"),
            RemoveResult::kRemoved);
  stage.terminal = true;
  EXPECT_EQ(stage.run({"shortcuts", "remove"}), 0);
  EXPECT_EQ(stage.err.str(), "");
}

TEST(ShortcutsRemoveCommand, StopsWhereACopyFails) {
  Stage stage;
  stage.link(kMenu + "\\Also gone.lnk", "C:\\gone.exe");
  stage.link(kMenu + "\\Zuletzt.lnk", "C:\\gone.exe");
  // What the copy would replace is a folder.
  stage.machine().add_folder(
      "C:\\Program Files\\Tidewrack\\backup\\short\\21_11_2026_10.00.00\\Gone.lnk2");
  EXPECT_EQ(stage.run({"shortcuts", "remove", "--yes"}), 1);
  EXPECT_FALSE(stage.has(kMenu + "\\Also gone.lnk"));
  EXPECT_TRUE(stage.has(kMenu + "\\Gone.lnk"));
  EXPECT_TRUE(stage.has(kMenu + "\\Zuletzt.lnk"));
  EXPECT_NE(stage.out.str().find("failed: " + kMenu +
                                 "\\Gone.lnk: its backup could not be written, the removal "
                                 "ended\nRemoved: 1, queued for the next restart: 0, failed: 1\n"),
            std::string::npos)
      << stage.out.str();
  EXPECT_EQ(stage.err.str(), "quillvane: shortcuts remove: 1 file could not be removed\n");
}

TEST(ShortcutsRemoveCommand, ALinkInUseIsAProblem) {
  Stage stage;
  stage.machine().machine().add_in_use(kMenu + "\\Gone.lnk");
  EXPECT_EQ(stage.run({"shortcuts", "remove", "--yes", "--json"}), 1);
  EXPECT_TRUE(stage.has(kMenu + "\\Gone.lnk"));
  EXPECT_EQ(stage.document()["outcome"], "failed");
}

TEST(ShortcutsRemoveCommand, CtrlCInTheScanRemovesNothing) {
  for (const char* command : {"shortcuts", "remove"}) {
    Stage stage;
    // In the wait at the first link.
    stage.machine().loop().start_timer(std::chrono::milliseconds(1), [pressed = false]() mutable {
      if (!std::exchange(pressed, true)) std::raise(SIGINT);
    });
    std::vector<std::string> words = {"shortcuts", "--json"};
    if (command == std::string("remove")) words = {"shortcuts", "remove", "--yes", "--json"};
    EXPECT_EQ(stage.run(words), 1);
    EXPECT_TRUE(stage.has(kMenu + "\\Gone.lnk"));
    EXPECT_EQ(stage.document()["totals"]["links"], 1);
    EXPECT_EQ(stage.document()["outcome"], "cancelled");
  }
}

TEST(ShortcutsReportCommand, WritesTheReportToStandardOutput) {
  Stage stage;
  EXPECT_EQ(stage.run({"shortcuts", "report", "-"}), 0);
  EXPECT_EQ(stage.out.str(),
            "Bad shortcut Report, creation time   21,11,2026   11/21/2026 10:00:00 AM\r\n"
            "Total files found = 2\r\n" +
                std::string(59, '-') + "\r\n\r\r\n" + "Away  |  E:\\away.exe  |  " + kMenu +
                "\\Away.lnk\r\n" + "Gone  |  C:\\gone.exe  |  " + kMenu + "\\Gone.lnk\r\n" +
                std::string(59, '-') +
                "\r\nThis Report Made by Tidewrack\r\n"
                "https://www.quillvane.example || support@quillvane.example\r\n");
}

TEST(ShortcutsReportCommand, AFileThatCannotBeWrittenIsAProblem) {
  Stage stage;
  EXPECT_EQ(stage.run({"shortcuts", "report", "no/such/folder/links.txt"}), 1);
  EXPECT_EQ(stage.err.str(), "quillvane: no/such/folder/links.txt: cannot be written\n");
}

TEST(RunCommand, TheUnseenShortcutRunTellsWhatItRemoved) {
  Stage stage;
  EXPECT_EQ(stage.run({"run", "g", "--json"}), 0);
  EXPECT_FALSE(stage.has(kMenu + "\\Gone.lnk"));
  EXPECT_FALSE(stage.has(kMenu + "\\Away.lnk"));
  EXPECT_TRUE(stage.has(kMenu + "\\There.lnk"));
  EXPECT_FALSE(stage.has("C:\\Program Files\\Tidewrack\\backup\\short"));
  EXPECT_EQ(json_text(stage.document()["cleaned"]), R"j({"removed":2,"queued":0,"failed":0})j");
}

TEST(RunCommand, OpeningTheShortcutWindowDoesNothingElse) {
  Stage stage;
  EXPECT_EQ(stage.run({"run", "s"}), 0);
  EXPECT_TRUE(stage.has(kMenu + "\\Gone.lnk"));
  EXPECT_EQ(stage.out.str() + stage.err.str(), "");
}

}  // namespace
}  // namespace quillvane
