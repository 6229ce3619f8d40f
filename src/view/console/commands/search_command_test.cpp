#include <gtest/gtest.h>

#include <csignal>
#include <sstream>
#include <utility>

#include "platform/forwarding_file_system.h"
#include "tests/support/one_machine_host.h"
#include "view/console/console.h"
#include "view/console/json_text.h"

namespace quillvane {
namespace {

struct Stage {
  Stage() {
    TempMachine& machine = host.machine.temp();
    machine.add_file("C:\\T\\a.tmp", 1536);
    machine.add_file("C:\\T\\b.bak", 3072);
    machine.add_file("C:\\T\\c.doc", 500);
  }
  void add_type(const std::string& description, const std::string& pattern) {
    const auto field = [](std::string text) {
      text.resize(50, ' ');
      return text;
    };
    table += field(description) + field(pattern) + "1";
    host.machine.temp().add_text_file("C:\\Program Files\\Tidewrack\\tmptype.txt", table);
  }
  int run(const std::vector<std::string>& words) {
    ConsoleIo io{in, out, err, false, terminal, 80};
    return run_console(words, io, host);
  }

  OneMachineHost host;
  std::string table;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  bool terminal = false;
};

TEST(SearchCommand, ListsWhatTheFileTypesThatAreOnMatch) {
  Stage stage;
  stage.add_type("Temporary files", "*.tmp");
  stage.add_type("Backups", "*.bak");
  EXPECT_EQ(stage.run({"search", "C:", "--list"}), 0);
  EXPECT_EQ(stage.out.str(),
            "    1.5 KB  C:\\T\\a.tmp\n"
            "      3 KB  C:\\T\\b.bak\n"
            "\n"
            "Drive            Files    Size\n"
            "Local Disk (C:)      2  4.5 KB\n"
            "Total                2  4.5 KB\n");
  EXPECT_EQ(stage.err.str(), "");
  EXPECT_TRUE(stage.host.machine.temp().has_file("C:\\T\\a.tmp"));
}

TEST(SearchCommand, TakesADriveByItsLetterInAnyForm) {
  for (const char* drive : {"C:", "c", "c:", "C:\\"}) {
    Stage stage;
    EXPECT_EQ(stage.run({"search", drive, "--types", "*.bak"}), 0) << drive;
    EXPECT_NE(stage.out.str().find("Total                1"), std::string::npos) << drive;
  }
}

TEST(SearchCommand, RefusesADriveThatIsNotThere) {
  for (const char* drive : {"X:", "CC", "1:", "C:\\T"}) {
    Stage stage;
    EXPECT_EQ(stage.run({"search", "C:", drive, "--types", "*.bak"}), 1) << drive;
    EXPECT_EQ(stage.err.str(),
              std::string("quillvane: ") + drive + ": is no drive that can be searched\n");
    EXPECT_EQ(stage.out.str(), "");
  }
}

TEST(SearchCommand, NeedsADrive) {
  Stage stage;
  EXPECT_EQ(stage.run({"search"}), 2);
}

TEST(SearchCommand, PatternsOfItsOwnTakeThePlaceOfTheTypes) {
  Stage stage;
  stage.add_type("Temporary files", "*.tmp");
  EXPECT_EQ(stage.run({"search", "C:", "--types", "*.bak,*.doc", "--json", "--list"}), 0);
  const Json json = Json::parse(stage.out.str());
  EXPECT_EQ(json["totals"]["files"], 2);
  EXPECT_EQ(json["totals"]["bytes"], 3572);
  EXPECT_EQ(json["drives"][0]["drive"], "C:");
  EXPECT_EQ(json["drives"][0]["status"], "Finish");
  ASSERT_EQ(json["files"].size(), 2U);
  EXPECT_EQ(json["files"][0]["path"], "C:\\T\\b.bak");
  EXPECT_EQ(json["files"][0]["size"], "3072");
  EXPECT_EQ(json["files"][1]["path"], "C:\\T\\c.doc");
  EXPECT_EQ(json.contains("outcome"), false);
}

TEST(SearchCommand, TellsBeforeTheRunThatEveryFileIsListed) {
  Stage stage;
  stage.add_type("file with zero size", "*.*");
  EXPECT_EQ(stage.run({"search", "C:", "--list"}), 0);
  EXPECT_EQ(stage.err.str(),
            "quillvane: search: the file type \"file with zero size\" is on: every file is "
            "listed\n");
  EXPECT_NE(stage.out.str().find("c.doc"), std::string::npos);
}

TEST(SearchCommand, TellsWhenNoTypeIsOn) {
  Stage stage;
  EXPECT_EQ(stage.run({"search", "C:"}), 0);
  EXPECT_EQ(stage.err.str(),
            "quillvane: search: no file type is on: no file of a drive is listed for its type\n");
}

TEST(SearchCommand, CtrlCEndsTheWholeSearch) {
  Stage stage;
  TempMachine& machine = stage.host.machine.temp();
  bool raised = false;
  struct Interrupting final : ForwardingFileSystem {
    Interrupting(FileSystem& next, bool& done) : ForwardingFileSystem(next), raised(done) {}
    std::shared_ptr<const FolderTree> read_tree_watched(const std::string& folder,
                                                        const TreeRequest& request,
                                                        TreeReading* watch) const override {
      if (folder == "C:\\" && !std::exchange(raised, true)) std::raise(SIGINT);
      return ForwardingFileSystem::read_tree_watched(folder, request, watch);
    }
    bool& raised;
  } files(machine.platform().files, raised);
  stage.host.machine.wrap = [&](const Platform& platform) {
    return platform.with({.files = &files});
  };
  EXPECT_EQ(stage.run({"search", "C:", "--types", "*.*", "--json", "--list"}), 1);
  EXPECT_TRUE(raised);
  EXPECT_EQ(stage.err.str(), "quillvane: search: cancelled, this is what was found until then\n");
  const Json json = Json::parse(stage.out.str());
  EXPECT_EQ(json["outcome"], "cancelled");
  EXPECT_EQ(json["totals"]["files"], 0);
}

}  // namespace
}  // namespace quillvane
