// scan and clean while browsers run: what is asked, closed, left out and told.
#include <gtest/gtest.h>

#include <sstream>

#include "tests/support/one_machine_host.h"
#include "view/console/console.h"
#include "view/console/json_text.h"

namespace quillvane {
namespace {

const std::string kAsked =
    "Google chrome is running. would you like to close it? otherwise tracks can't be cleaned. "
    "[y/N] ";
const std::string kLeftOut =
    "quillvane: Google Chrome Cache: left out, since the browser is running\n";

// Chrome and Firefox have a file each; Chrome runs.
struct Stage {
  Stage() {
    TempMachine& machine = host.machine.temp();
    machine.add_file(
        "C:\\Users\\User\\AppData\\Local\\Google\\Chrome\\User Data\\Default\\Cache\\f_1", 100);
    machine.add_registry_key(Hive::kCurrentUser,
                             "Software\\Google\\Chrome\\PreferenceMACs\\Default");
    machine.add_file(
        "C:\\Users\\User\\AppData\\Roaming\\Mozilla\\Firefox\\Profiles\\x\\places.sqlite", 20);
    machine.machine().add_process(7, "chrome.exe");
  }

  int run(const std::vector<std::string>& words, const std::string& typed = "") {
    in.str(typed);
    ConsoleIo io{in, out, err};
    io.in_is_terminal = terminal;
    return run_console(words, io, host);
  }
  [[nodiscard]] double bytes() const {
    return Json::parse(out.str())["totals"]["bytes"].get<double>();
  }

  std::size_t left_running() { return host.machine.temp().machine().state().processes.size(); }

  OneMachineHost host;
  bool terminal = true;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
};

TEST(ScanBrowsers, AYesAtTheTerminalClosesTheBrowserAndScansIt) {
  Stage stage;
  EXPECT_EQ(stage.run({"scan", "--json"}, "y\n"), 0);
  EXPECT_EQ(stage.err.str(), kAsked);
  EXPECT_EQ(stage.bytes(), 120);
  EXPECT_EQ(stage.left_running(), 0U);
  EXPECT_FALSE(Json::parse(stage.out.str()).contains("skipped"));
}

TEST(ScanBrowsers, ANoLeavesTheBrowserOutAndSaysSo) {
  Stage stage;
  EXPECT_EQ(stage.run({"scan", "--json"}, "n\n"), 0);
  EXPECT_EQ(stage.err.str(), kAsked + kLeftOut);
  EXPECT_EQ(stage.bytes(), 20);
  EXPECT_EQ(stage.left_running(), 1U);
  const Json document = Json::parse(stage.out.str());
  EXPECT_EQ(json_text(document["skipped"]), R"j(["Google Chrome Cache"])j");
  EXPECT_EQ(document["categories"][14]["caption"], "Google Chrome Cache");
}

TEST(ScanBrowsers, WithoutATerminalTheAnswerIsNo) {
  Stage stage;
  stage.terminal = false;
  EXPECT_EQ(stage.run({"scan", "--json"}, "y\n"), 0);
  EXPECT_EQ(stage.err.str(), kLeftOut);
  EXPECT_EQ(stage.bytes(), 20);
  EXPECT_EQ(stage.left_running(), 1U);
}

TEST(ScanBrowsers, KeepBrowsersIsANoForAll) {
  Stage stage;
  stage.host.machine.temp().machine().add_process(8, "firefox.exe");
  EXPECT_EQ(stage.run({"scan", "--keep-browsers", "--json"}, "y\ny\n"), 0);
  EXPECT_EQ(stage.err.str(),
            "quillvane: Mozila Firefox Cache: left out, since the browser is running\n" + kLeftOut);
  EXPECT_EQ(json_text(Json::parse(stage.out.str())["skipped"]),
            R"j(["Mozila Firefox Cache","Google Chrome Cache"])j");
  EXPECT_EQ(stage.left_running(), 2U);
}

TEST(ScanBrowsers, CloseBrowsersIsAYesForAll) {
  Stage stage;
  stage.terminal = false;
  stage.host.machine.temp().machine().add_process(8, "firefox.exe");
  EXPECT_EQ(stage.run({"scan", "--json", "--close-browsers"}), 0);
  EXPECT_EQ(stage.err.str(), "");
  EXPECT_EQ(stage.bytes(), 120);
  EXPECT_EQ(stage.left_running(), 0U);
}

TEST(ScanBrowsers, BothAnswersAtOnceAreWrongWords) {
  Stage stage;
  EXPECT_EQ(stage.run({"scan", "--close-browsers", "--keep-browsers"}), 2);
  EXPECT_EQ(stage.err.str(), "quillvane: --keep-browsers: does not go with --close-browsers\n");
  EXPECT_EQ(stage.left_running(), 1U);
}

TEST(ScanBrowsers, TheTableGoesWithTheSameLine) {
  Stage stage;
  EXPECT_EQ(stage.run({"scan", "--keep-browsers"}), 0);
  EXPECT_EQ(stage.err.str(), kLeftOut);
  EXPECT_NE(stage.out.str().find("\n  Google Chrome Cache              0   0 B\n"),
            std::string::npos)
      << stage.out.str();
}

TEST(ScanBrowsers, NobodyIsToldOfBrowsersThatDoNotRun) {
  Stage stage;
  static_cast<void>(stage.host.machine.platform().processes.terminate(7));
  EXPECT_EQ(stage.run({"scan", "--json"}, ""), 0);
  EXPECT_EQ(stage.err.str(), "");
  EXPECT_EQ(stage.bytes(), 120);
}

TEST(ScanBrowsers, TheQuestionStandsInALineOfItsOwnBesideTheProgress) {
  Stage stage;
  ConsoleIo io{stage.in, stage.out, stage.err};
  io.err_is_terminal = true;
  io.in_is_terminal = true;
  EXPECT_EQ(run_console({"scan", "--json"}, io, stage.host), 0);
  const std::string told = stage.err.str();
  const std::size_t question = told.find(kAsked);
  ASSERT_NE(question, std::string::npos) << told;
  EXPECT_TRUE(question == 0 || told[question - 1] == '\r') << told;
}

TEST(CleanBrowsers, WhatWasLeftOutIsNotRemoved) {
  Stage stage;
  EXPECT_EQ(stage.run({"clean", "--yes", "--keep-browsers", "--json"}), 0);
  EXPECT_EQ(stage.err.str(), kLeftOut);
  const Json document = Json::parse(stage.out.str());
  EXPECT_EQ(json_text(document["skipped"]), R"j(["Google Chrome Cache"])j");
  EXPECT_EQ(document["cleaned"]["removed"], 1);
}

TEST(CleanBrowsers, AClosedBrowserIsCleaned) {
  Stage stage;
  EXPECT_EQ(stage.run({"clean", "--yes", "--close-browsers", "--json"}), 0);
  EXPECT_EQ(stage.err.str(), "");
  EXPECT_EQ(Json::parse(stage.out.str())["cleaned"]["removed"], 2);
}

}  // namespace
}  // namespace quillvane
