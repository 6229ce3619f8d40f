#include <gtest/gtest.h>

#include <csignal>
#include <sstream>

#include "tests/support/one_machine_host.h"
#include "view/console/console.h"
#include "view/console/json_text.h"

namespace quillvane {
namespace {

struct Stage {
  Stage() {
    TempMachine& machine = host.machine.temp();
    machine.add_file("C:\\Windows\\Temp\\a.tmp", 1200);
    machine.add_file("C:\\Windows\\Temp\\b.tmp", 3000);
    machine.add_file("C:\\Users\\User\\AppData\\Local\\Temp\\c.tmp", 500);
    folder = machine.folder();
  }

  int run(const std::vector<std::string>& words) {
    ConsoleIo io{in, out, err, false, terminal, 80};
    return run_console(words, io, host);
  }

  OneMachineHost host;
  std::string folder;
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  bool terminal = false;
};

TEST(ScanCommand, ShowsCategoriesTotalsAndTheSummary) {
  Stage stage;

  EXPECT_EQ(stage.run({"scan"}), 0);

  const std::string out = stage.out.str();
  for (const char* line : {
           "\nWindows                            3  4.6 KB\n",
           "\n  System Temporary                 2  4.1 KB\n",
           "\n  User Temporary                   1   500 B\n",
           "\nBrowsers                           0     0 B\n",
           "\nTotal                              3  4.6 KB\n",
           "\n\nJunk files found : ( 3 ) files , Size : ( 4.6 KB ) - Click \"Start Cleaning\" "
           "to Remove selected Files\n",
       }) {
    EXPECT_NE(out.find(line), std::string::npos) << line << out;
  }
  EXPECT_EQ(out.find("a.tmp"), std::string::npos);
  EXPECT_EQ(stage.err.str(), "");
}

// Nothing is removed, nor is a result told as whole.
TEST(ScanCommand, AnIgnoreListThatCannotBeReadIsAProblemOfEachCommandThatScans) {
  const std::string problem =
      "quillvane: C:\\Program Files\\Tidewrack\\ignore.tdw: a folder has its name. Nothing is "
      "removed while the ignore list cannot be read.\n";
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"scan"}, {"clean", "--yes"}, {"run", "w"}, {"run", "w2-c2"}}) {
    Stage stage;
    TempMachine& machine = stage.host.machine.temp();
    machine.add_folder("C:\\Program Files\\Tidewrack\\ignore.tdw");
    EXPECT_EQ(stage.run(words), 1) << words.back();
    EXPECT_EQ(stage.err.str(), problem) << words.back();
    EXPECT_TRUE(machine.has_file("C:\\Windows\\Temp\\a.tmp")) << words.back();
  }
}

TEST(ScanCommand, ListsEachFileWhenAsked) {
  Stage stage;

  EXPECT_EQ(stage.run({"scan", "--list"}), 0);

  EXPECT_NE(stage.out.str().find("  System Temporary                 2  4.1 KB\n"
                                 "        1.2 KB  C:\\Windows\\Temp\\a.tmp\n"
                                 "        2.9 KB  C:\\Windows\\Temp\\b.tmp\n"
                                 "  User Temporary                   1   500 B\n"
                                 "         500 B  C:\\Users\\User\\AppData\\Local\\Temp\\c.tmp\n"),
            std::string::npos)
      << stage.out.str();
}

TEST(ScanCommand, AsJsonTellsWhatEachCategoryPutIntoTheTotals) {
  Stage stage;
  // The dump is in no total; the category before it is counted once more in its place.
  stage.host.machine.temp().add_file("C:\\Windows\\MEMORY.DMP", 5000);
  stage.host.machine.temp().add_file(
      "C:\\Users\\User\\AppData\\Local\\Microsoft\\Windows\\Explorer\\thumbcache_16.db", 100);
  stage.host.machine.temp().set_registry_text(Hive::kLocalMachine,
                                              "SYSTEM\\CurrentControlSet\\Control\\CrashControl",
                                              "DumpFile", "C:\\Windows\\MEMORY.DMP");

  EXPECT_EQ(stage.run({"scan", "--json", "--list"}), 0);

  const auto document = Json::parse(stage.out.str());
  EXPECT_EQ(json_text(document["totals"]), R"j({"files":5,"bytes":4900})j");
  EXPECT_EQ(document["categories"].size(), 24U);
  EXPECT_EQ(json_text(document["categories"][0]),
            R"j({"index":1,"key":"w","caption":"Windows ( 5 files, 4.8 KB )","files":5,)j"
            R"j("bytes":4900})j");
  EXPECT_EQ(json_text(document["categories"][3]),
            R"j({"index":4,"key":"tc","caption":"Thumbnail cache ( 1 files, 100 B )","files":1,)j"
            R"j("bytes":100})j");
  EXPECT_EQ(json_text(document["categories"][4]),
            R"j({"index":5,"key":"mdf","caption":"Memory Dump Files ( 1 file, 4.9 KB )",)j"
            R"j("files":1,"bytes":100})j");
  ASSERT_EQ(document["files"].size(), 4U);
  EXPECT_EQ(document["files"][0]["path"], "C:\\Windows\\Temp\\a.tmp");
  EXPECT_EQ(document["files"][0]["size"], "1.2 KB");
  EXPECT_EQ(document["files"][0]["category"], 2);
}

TEST(ScanCommand, ShowsProgressOnATerminalAndErasesIt) {
  Stage stage;
  stage.terminal = true;

  EXPECT_EQ(stage.run({"scan"}), 0);

  // At its first serving the scan has looked at nothing yet.
  EXPECT_TRUE(stage.err.str().starts_with('\r')) << stage.err.str();
  EXPECT_EQ(stage.err.str().find('\n'), std::string::npos);
}

// Presses Ctrl-C as soon as the progress line appears.
class InterruptingBuffer final : public std::streambuf {
 protected:
  int_type overflow(int_type c) override {
    if (!done_) std::raise(SIGINT);
    done_ = true;
    return traits_type::not_eof(c);
  }

 private:
  bool done_ = false;
};

TEST(ScanCommand, CtrlCCancelsAndStillPrintsWhatWasFound) {
  Stage stage;
  InterruptingBuffer buffer;
  std::ostream err(&buffer);
  ConsoleIo io{stage.in, stage.out, err, false, true, 80};

  EXPECT_EQ(run_console({"scan", "--json"}, io, stage.host), 1);

  // It came before the first file was looked at.
  const auto document = Json::parse(stage.out.str());
  EXPECT_EQ(document["outcome"], "cancelled");
  EXPECT_EQ(json_text(document["totals"]), R"j({"files":0,"bytes":0})j");
  EXPECT_EQ(document["categories"][1]["caption"], "System Temporary ( 0 files, 0 B )");
  EXPECT_EQ(document["categories"][2]["caption"], "User Temporary");
}

}  // namespace
}  // namespace quillvane
